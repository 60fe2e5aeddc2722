/// Draws the steps of the list, and gives those in view what can be operated in them.
#pragma once

#include <QStyledItemDelegate>

class StepModel;
class StepRow;

class StepDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit StepDelegate(StepModel &model, QObject *parent); ///< @p model outlives it

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *, QAbstractItemModel *, const QModelIndex &) const override {
    } ///< rows do it themselves
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

signals:
    void rowMade(StepRow *row) const;

private:
    StepModel &mModel;
};
