/// How a layout looks in the list of layouts.
#pragma once

#include <QStyledItemDelegate>

/// Two lines, the name (elided) and the number of keys, with marks at the right.
class LayoutItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    enum Role {
        KeysRole = Qt::UserRole + 1, ///< text of the second line
        HomeRole,                    ///< whether there is the mark
        PendingRole,
        ChangedRole,
    };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
