/// The buttons below the grid of a layout: merge, split, reset, starting points.
#pragma once

#include "model/layoutgrouping.h"

#include <QVector>
#include <QWidget>

class QAction;
class QLabel;
class QMenu;
class QPushButton;

namespace vorlindesk {
class LanguageManager;
}

class LayoutTools : public QWidget
{
    Q_OBJECT
public:
    /// @p language outlives it.
    LayoutTools(const vorlindesk::LanguageManager &language, QWidget *parent);

    /// What can be done with @p selection, a mask of physical keys, of @p grouping; nothing unless @p
    /// editable.
    void showState(const vorlinmodel::LayoutGrouping &grouping, quint32 selection, bool editable);
    void setNote(const QString &text); ///< right of the buttons
    void retranslate();

signals:
    void sigMerge();
    void sigSplit();
    void sigStartingPoint(const QString &text, const vorlinmodel::LayoutGrouping &grouping);

private:
    QPushButton *addButton(const char *name);
    void addStartingPoints();

    const vorlindesk::LanguageManager &mLanguage;
    QPushButton *mpMerge;
    QPushButton *mpSplit;
    QPushButton *mpReset;
    QPushButton *mpStart;
    QMenu *mpStartMenu;
    QVector<QAction *> mStartActions;
    QLabel *mpNote;
};
