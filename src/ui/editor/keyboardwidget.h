/// One page of one layout as a grid of keys.
#pragma once

#include "keydescriptor.h"
#include "model/keyid.h"

#include <QList>
#include <QVector>
#include <QWidget>

class KeyWidget;
struct EditorContext;

class KeyboardWidget : public QWidget
{
    Q_OBJECT
public:
    static constexpr int AllKeys = 10000; ///< key id that stands for every key in updateKeyIcon()

    KeyboardWidget(EditorContext &context, int layoutId, int pageId, QWidget *parent);

    bool setup(bool connectSignals, bool flag);
    /// Not to be called while a cell handles an event: the cells are deleted.
    void rebuild(int layoutId);
    void updateKeyIcon(const vorlinmodel::key_id_t &key);
    void updateAllIcons();
    void deleteAll();
    bool selectByRect(const QRect &rect); ///< in grid coordinates; @return whether the last cell was selected
    void setVisible(bool visible) override;
    QList<KeyWidget *> cells() const { return mCells; }
    KeyWidget *cell(int keyId) const; ///< null when there is none
    int layoutId() const { return mLayoutId; }
    int pageId() const { return mPageId; }

    // Selection by mouse and keyboard. The current key is the one that the attribute editor shows.
    QVector<vorlinmodel::key_id_t>
    selectedKeys() const;                     ///< ascending; the current key alone when nothing else is
    vorlinmodel::key_id_t currentKey() const; ///< key id 0 when none
    void setCurrentKey(int keyId);            ///< selects it alone, as a click does
    void selectAll();
    void deleteSelected(); ///< those that have a function, as one step

    const GridMetrics &metrics() const { return mMetrics; }
    bool flag() const { return mFlag; } ///< the second one of setup(), kept for the owner
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void dataChangeSignal(const vorlinmodel::key_id_t &key_id_, int fid_, bool isDouble);
    void functionTaken(const vorlinmodel::key_id_t &key_id_, int fid_); ///< of a cell
    void selectionChanged();
    void editTitleRequested(const vorlinmodel::key_id_t &key_id_); ///< F2

public slots:
    void onButtonClicked();
    void onDataChangeHandler(const vorlinmodel::key_id_t &key_id_, int fid_);
    void onButtonDoubleClicked(const vorlinmodel::key_id_t &key_id_, int fid_);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setupStandard();
    void setupCustomLayout();
    void createCells(const QVector<KeyDescriptor> &descriptors);
    void connectCell(KeyWidget *cell);
    void placeCells();
    void refresh(KeyWidget *cell);
    void refreshKeys(const QVector<vorlinmodel::key_id_t> &keys);
    void refreshFaces(const QString &path);
    bool isOnPage(const vorlinmodel::key_id_t &key) const;

    QVector<QRect> places() const;
    int indexOf(int keyId) const; ///< in mCells; -1 when there is none
    void select(const QVector<int> &indexes, int currentKeyId);
    void selectAlone(int index);
    void selectTo(int index);
    void toggle(int index);
    void moveTo(int index, bool extends);
    bool walk(QKeyEvent *event);
    bool actOnCurrent(QKeyEvent *event);

    EditorContext &mContext;
    QList<KeyWidget *> mCells;
    GridMetrics mMetrics;
    int mLayoutId;
    int mPageId;
    bool mConnectSignals = false;
    bool mFlag = false;
    bool mVisible = false;
    int mCurrent = 0; ///< key id; 0 = none
    int mAnchor = 0;  ///< key id from which Shift extends the selection
};
