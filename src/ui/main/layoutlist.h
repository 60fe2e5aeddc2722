/// The list of layouts, and the buttons that make new ones and delete them.
#pragma once

#include <QVector>
#include <QWidget>

class QListWidget;
class QPushButton;

namespace vorlindesk {
class LanguageManager;
}

struct LayoutEntry
{
    int layoutId = 0;
    QString name;
    int keys = 0;
    bool isHome = false;
    bool isPending = false; ///< the panel does not have it as it is here
    bool isChanged = false; ///< in the draft, not saved yet
    bool operator==(const LayoutEntry &) const = default;
};

class LayoutList : public QWidget
{
    Q_OBJECT
public:
    /// @p language outlives it.
    LayoutList(const vorlindesk::LanguageManager &language, QWidget *parent);

    void setEntries(const QVector<LayoutEntry> &entries); ///< the chosen layout stays chosen if it is there
    void choose(int layoutId);                            ///< without a signal
    int chosen() const;                                   ///< 0: none
    void retranslate();

signals:
    void sigChosen(int layoutId); ///< by the person
    void sigActivated();          ///< Enter, or a double click
    void sigNew();
    void sigDuplicate();
    void sigDelete();

private:
    void onCurrentRowChanged();
    void showEntry(int row);
    QString description(const LayoutEntry &entry) const;

    const vorlindesk::LanguageManager &mLanguage;
    QVector<LayoutEntry> mEntries; ///< in the order of the rows
    QListWidget *mpList;
    QPushButton *mpNew;
    QPushButton *mpDuplicate;
    QPushButton *mpDelete;
};
