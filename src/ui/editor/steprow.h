/// What can be operated in one step of the list: its content, and the buttons that copy and remove it.
#pragma once

#include "stepcontent.h"

#include <QPersistentModelIndex>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;
class StepModel;

/// Only the rows in view have one; the list paints the rest.
class StepRow : public QWidget
{
    Q_OBJECT
public:
    StepRow(StepModel &model, const QModelIndex &index, QWidget *parent); ///< @p model outlives it

    void refresh(); ///< shows the step as the model has it
    int row() const { return mIndex.row(); }
    void focusContent();
    QWidgetList tabChain() const;

signals:
    void copyClicked(int row);
    void removeClicked(int row);
    void focused(int row); ///< one of its fields has got the focus
    void left();           ///< Escape: back to the list

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeContent(StepContent::Kind kind);
    QWidget *makeLine(bool path);
    QWidget *makeText();
    QWidget *makeDelay();
    QWidget *makeCombination();
    void watch(QWidget *field);
    void chooseFile();
    void showContent();
    void showCounter();
    void nameParts();
    QString content() const;
    void edit(const QString &content);
    bool filterKey(QEvent &event);

    StepModel &mModel;
    const QPersistentModelIndex mIndex;
    StepContent::Kind mKind = StepContent::Kind::None;
    QHBoxLayout *mpLayout;
    QWidget *mpContent = nullptr; ///< null for steps without content
    QToolButton *mpChoose = nullptr;
    QLabel *mpCounter;
    QToolButton *mpCopy;
    QToolButton *mpRemove;
};
