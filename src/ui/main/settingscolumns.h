/// How the groups of the settings page stand: one below the other, or in two columns where there is room.
#pragma once

#include <QVector>
#include <QWidget>

class QBoxLayout;

class SettingsColumns : public QWidget
{
    Q_OBJECT
public:
    static constexpr int TwoColumnsFrom = 1200; ///< pixels of width

    explicit SettingsColumns(QWidget *parent);

    enum class Side { Left, Right };
    /// In a single column the groups keep the order in which they were added. @p group becomes a child.
    void add(QWidget *group, Side side);
    /// In front of @p next in that order, on its side.
    void insertBefore(const QWidget *next, QWidget *group);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Entry
    {
        QWidget *group;
        Side side;
    };

    void place();

    QVector<Entry> mEntries;
    QBoxLayout *mpLeft;
    QBoxLayout *mpRight;
    bool mHasTwo = false;
};
