/// The editor of a multi-action key's steps.
#pragma once

#include "model/keyid.h"
#include "stepmodel.h"

#include <QFrame>

class QLabel;
class QPushButton;
class StepListView;
class StepRunner;
enum class StepCommand;
struct EditorContext;

class MultiActionWidget : public QFrame
{
    Q_OBJECT
public:
    MultiActionWidget(EditorContext &context, QWidget *parent);
    ~MultiActionWidget() override;

    bool setup();
    void open(const vorlinmodel::key_id_t &key, int mainFid); ///< loads the key's steps and shows itself
    bool isModified() const;
    /// Asks about unsaved steps (save, discard, stay). @return false to stay.
    bool confirmLeave();
    void addStep(int fid); ///< at the end, or behind the selected one
    void retranslate();

    StepModel &steps() { return mSteps; }
    StepRunner &runner() { return *mpRunner; }

signals:
    void sigBtnReturnClicked(const vorlinmodel::key_id_t &key_id_, int mainFid);
    void actionItemClicked(const vorlinmodel::key_id_t &key_id_, int fid_, int step);

public slots:
    bool save(); ///< @return false when the steps are still unsaved; the person was told why

protected:
    bool event(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void ensureBuilt();
    void build();
    void connectParts();
    void load();
    void leave();
    void onKeysChanged(const QVector<vorlinmodel::key_id_t> &keys);
    void onCurrentStepChanged(int row);
    bool hasFunction() const;
    bool refuses();
    bool mayWriteFile();
    bool write();
    QString faults() const;
    bool hasCommand(StepCommand command) const;
    void run(StepCommand command);
    void showTitle();
    void showState();
    QString stateText() const;
    void test();
    void onTestState(int row, StepModel::RunState state);
    void onTestFinished(bool whole);

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    int mMainFid = 0;
    QString mTestText; ///< how the test goes; empty when there is none
    StepModel mSteps;
    StepRunner *mpRunner;
    QLabel *mpPicture;
    QLabel *mpTitle;
    StepListView *mpList;
    QLabel *mpState;
    QPushButton *mpTest;
    QPushButton *mpStop;
    QPushButton *mpSave;
    QPushButton *mpReturn;
};
