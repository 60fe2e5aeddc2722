/// What the editor page keeps for one layout, and the area in which its grids take turns.
#pragma once

#include "model/keyid.h"

#include <QWidget>
#include <array>

class KeyboardWidget;
class QLabel;
class QPushButton;

/// All widgets are owned by their parents. The navigation is one row that all layouts share.
struct KeyboardFrame
{
    int nLayoutId = 0;
    QString ownName;        ///< that the person gave; empty for the standard layout
    bool isCurrent = false; ///< of at most one frame; of none while the multi-action editor is open
    int nCurPage = 1;
    std::array<KeyboardWidget *, vorlinmodel::MaxPage + 1>
        grids{}; ///< by page number; null until first shown
    QPushButton *pPrevPageButton = nullptr;
    QPushButton *pNextPageButton = nullptr;
    QLabel *pPageLabel = nullptr;
    QPushButton *pLayoutButton = nullptr;
};

/// Gives all of itself to the grid in view.
class GridArea : public QWidget
{
    Q_OBJECT
public:
    explicit GridArea(QWidget *parent);

    /// Shows @p grid, a child of this, and hides the one before; null hides it only. The focus goes with it.
    void showGrid(KeyboardWidget *grid);
    KeyboardWidget *grid() const { return mpGrid; }
    void forget(KeyboardWidget *grid); ///< before it is deleted

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    KeyboardWidget *mpGrid = nullptr;
};
