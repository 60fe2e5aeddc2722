/// The page of the system settings: language, versions, what the panel reports, and where files lie.
#pragma once

#include <QFrame>
#include <QMap>
#include <QPair>
#include <QVector>

class QComboBox;
class QFormLayout;
class QLabel;
class QPushButton;
class QRadioButton;

namespace vorlindesk {
class IDesktop;
class LanguageManager;
} // namespace vorlindesk

class SystemSettingsPage : public QFrame
{
    Q_OBJECT
public:
    SystemSettingsPage(vorlindesk::LanguageManager &language, vorlindesk::IDesktop &desktop, QWidget *parent);

    bool setup(); ///< @return false when it cannot be built
    /// @p deviceValues as the panel reported them, by function code.
    void refresh(const QMap<int, QString> &deviceValues);
    /// The layouts to choose from are those of the file. @p layoutId as the panel reported it; 0: not known.
    void showHomeLayout(bool connected, int layoutId);
    void retranslate();

signals:
    void sigHomeLayoutChosen(int layoutId); ///< by the person; not confirmed yet

private:
    QWidget *homeLayoutChoice();
    void fillHomeLayouts();
    QLabel *addRow(const char *valueName);
    QWidget *languageChoice();
    QWidget *folderRow(const char *buttonName, const QString &folder);

    vorlindesk::LanguageManager &mLanguage;
    vorlindesk::IDesktop &mDesktop;
    QMap<int, QString> mDeviceValues;
    int mHomeLayout = 0;
    QVector<QPair<int, QString>> mHomeLayouts; ///< what the box offers: id and name
    bool mConnected = false;
    QComboBox *mpHomeLayout = nullptr;
    QFormLayout *mpRows = nullptr;
    QLabel *mpCaption;
    QVector<QLabel *> mCaptions; ///< in the order of the rows
    QVector<QLabel *> mValues;   ///< of the rows that are texts, in their order
    QVector<QRadioButton *> mLanguages;
    QVector<QPushButton *> mOpenButtons;
};
