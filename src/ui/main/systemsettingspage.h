/// The page of the system settings: the program, the panel and its care, switches, and where files lie.
#pragma once

#include "panelreset.h"

#include <QFrame>
#include <QMap>
#include <QPushButton>
#include <QVector>

class BrightnessRow;
class PanelChoice;
class QLabel;
class QRadioButton;
class QScrollArea;
class SettingsCard;
class SettingsColumns;
class SettingsSwitches;
struct EditorContext;

namespace vorlindesk {
class IDesktop;
class LanguageManager;
} // namespace vorlindesk

/// Groups in a scroll area. @p context and @p desktop outlive the page.
class SystemSettingsPage : public QFrame
{
    Q_OBJECT
public:
    SystemSettingsPage(EditorContext &context, Backups &backups, vorlindesk::IDesktop &desktop,
                       QWidget *parent);

    bool setup(); ///< @return false when it cannot be built
    /// Puts @p section between the care of the panel and the switches, as a group whose caption is the title
    /// of the section (QWidget::windowTitle). It becomes a child. After setup().
    void addSection(QWidget *section);

    /// @p deviceValues as the panel reported them, by function code.
    void refresh(const QMap<int, QString> &deviceValues);
    /// The layouts to choose from are those of the file. @p homeLayout as the panel reported it; 0: not
    /// known.
    void showPanel(bool connected, int homeLayout);
    void setReading(bool reading); ///< the panel's configuration is being read, and cannot be cleared
    void
    setImporting(bool importing); ///< a backup takes the place of the settings, which nobody changes then
    void retranslate();

signals:
    void sigHomeLayoutChosen(int layoutId); ///< by the person; not confirmed yet

private:
    SettingsCard *programCard();
    SettingsCard *panelCard();
    SettingsCard *careCard();
    SettingsCard *switchesCard();
    SettingsCard *foldersCard();
    QLabel *valueLabel(const char *name);
    QWidget *languageChoice();
    QWidget *folderRow(const char *buttonName, const QString &folder);
    void addActionRow(SettingsCard &card, const char *name, int textId, const std::function<void()> &act);
    QPushButton *action(const char *name) const { return findChild<QPushButton *>(QLatin1String(name)); }
    QString value(int code) const { return mDeviceValues.value(code); }

    void retranslateCaptions();
    void retranslateActions();
    void showVersions();
    void fillHomeLayouts();
    void fillSystemTypes();
    void showActions();
    QString whyNotNow() const;
    QString importing() const;
    void enableUnless(QWidget *control, const QString &reason);

    struct Action
    {
        QPushButton *button;
        int textId;
        QLabel *explanation;
    };

    EditorContext &mContext;
    const vorlindesk::LanguageManager &mLanguage;
    vorlindesk::IDesktop &mDesktop;
    Backups &mBackups;
    PanelReset mReset;
    QMap<int, QString> mDeviceValues;
    int mHomeLayout = 0;
    bool mConnected = false;
    bool mReading = false;
    bool mImporting = false;
    QWidget *mpWaitingForFocus = nullptr;

    QLabel *mpCaption;
    SettingsColumns *mpColumns = nullptr;
    QVector<SettingsCard *> mCards;
    QVector<QLabel *> mCaptions; ///< on the left of the rows, in their order
    QVector<Action> mActions;
    QVector<QRadioButton *> mLanguages;
    QVector<QPushButton *> mOpenButtons;
    BrightnessRow *mpBrightness = nullptr;
    PanelChoice *mpSystemType = nullptr;
    PanelChoice *mpHomeLayout = nullptr;
    QLabel *mpStatus = nullptr;
    SettingsSwitches *mpSwitches = nullptr;
};
