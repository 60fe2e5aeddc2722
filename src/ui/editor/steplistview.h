/// The list of steps: shows, selects, moves, takes drops.
#pragma once

#include <QListView>

class QFrame;
class StepDelegate;
class StepModel;
class StepRow;
enum class StepCommand;

class StepListView : public QListView
{
    Q_OBJECT
public:
    StepListView(StepModel &model, QWidget *parent); ///< @p model outlives it

    QVector<int> selectedSteps() const; ///< rows, ascending
    void select(int first, int count);  ///< and scrolls there; the first of them becomes the current one
    void addFunction(int fid);          ///< behind the selected steps, or at the end

    /// @return false when the command has nothing to do here, so that it may mean something elsewhere.
    bool run(StepCommand command);
    void retranslate();
    QSize minimumSizeHint() const override { return {300, 120}; }

signals:
    void currentStepChanged(int row); ///< also for a click on the current one; -1: none

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void connectRow(StepRow *row);
    void openRowsInView();
    void closeRowsOutside(int first, int last);
    void chainTabs(int first, int last);
    StepRow *rowWidget(int row) const;
    bool takes(const QDropEvent &event) const;
    bool isMove(const QDropEvent &event) const;
    int dropRow(const QPoint &position) const;
    void showDropLine(int row);
    int insertionRow() const;
    void duplicate(const QVector<int> &rows);
    void remove(const QVector<int> &rows);
    void moveBy(int distance);
    void paste();
    void toClipboard() const;

    StepModel &mSteps;
    QFrame *mpDropLine;
    QVector<QPersistentModelIndex> mOpen; ///< rows with widgets
    bool mOpening = false;
};
