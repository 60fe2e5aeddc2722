/// The page of the system settings: language, versions, what the panel reports, and where files lie.
#pragma once

#include <QFrame>
#include <QMap>
#include <QVector>

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
    void retranslate();

private:
    QLabel *addRow(const char *valueName);
    QWidget *languageChoice();
    QWidget *folderRow(const char *buttonName, const QString &folder);

    vorlindesk::LanguageManager &mLanguage;
    vorlindesk::IDesktop &mDesktop;
    QMap<int, QString> mDeviceValues;
    QFormLayout *mpRows = nullptr;
    QLabel *mpCaption;
    QVector<QLabel *> mCaptions; ///< in the order of the rows
    QVector<QLabel *> mValues;   ///< of the rows that are texts, in their order
    QVector<QRadioButton *> mLanguages;
    QVector<QPushButton *> mOpenButtons;
};
