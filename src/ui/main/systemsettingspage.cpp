#include "systemsettingspage.h"

#include "base/language.h"
#include "brightnessrow.h"
#include "layoutnames.h"
#include "model/customlayouts.h"
#include "panelchoice.h"
#include "settingscard.h"
#include "settingsswitches.h"
#include "wire/functioncode.h"

#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>
#include <iterator>

namespace {

constexpr int CaptionText = 10;
constexpr int LanguageTexts[] = {25, 23, 24}; // by value of the language
constexpr int LanguageText = 22;
constexpr int OpenText = 83;
constexpr int BrightnessText = 108;
constexpr int SystemTypeText = 113;
constexpr int SystemTypeTexts[] = {114, 115}; // by value of the type
constexpr int LongestName = 40;

QString shortName(const QString &name)
{
    return name.size() <= LongestName ? name : name.left(LongestName) + QChar(0x2026);
}

constexpr int code(FunctionCode functionCode)
{
    return static_cast<int>(functionCode);
}

} // namespace

/// A control that cannot be used says why. The focus waits on the page for the control that had it: passing
/// on, it would scroll the page to another one.
void SystemSettingsPage::enableUnless(QWidget *control, const QString &reason)
{
    const auto isIn = [control](const QWidget *part) { // it, or one of a group
        return part == control || control->isAncestorOf(part);
    };
    QWidget *focused = window()->focusWidget(); // has it, or gets it when a box has gone
    if (!reason.isEmpty() && isIn(focused)) {
        mpWaitingForFocus = focused;
        setFocus();
    }
    control->setEnabled(reason.isEmpty());
    control->setToolTip(reason);
    if (reason.isEmpty() && mpWaitingForFocus && isIn(mpWaitingForFocus)) {
        QWidget *waiting = std::exchange(mpWaitingForFocus, nullptr);
        if (window()->focusWidget() == this)
            waiting->setFocus();
    }
}

void SystemSettingsPage::refresh(const QMap<int, QString> &deviceValues)
{
    mDeviceValues = deviceValues;
    mpSwitches->refresh(); // one is taken back when the panel has sent its layouts
    showVersions();
    fillSystemTypes();
    mpBrightness->showPanel(mConnected, value(code(FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT)));
}

void SystemSettingsPage::showPanel(bool connected, int homeLayout)
{
    mConnected = connected;
    mHomeLayout = homeLayout;
    fillHomeLayouts();
    showActions();
    mpBrightness->showPanel(mConnected, value(code(FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT)));
}

void SystemSettingsPage::setReading(bool reading)
{
    mReading = reading;
    showActions();
}

void SystemSettingsPage::setImporting(bool importing)
{
    mImporting = importing;
    showActions();
}

QString SystemSettingsPage::importing() const
{
    return mImporting ? tr("A backup is being imported.") : QString();
}

void SystemSettingsPage::showVersions()
{
    const std::pair<const char *, QString> values[] = {
        {"ownVersion", QCoreApplication::applicationVersion()},
        {"softwareVersionValue", value(code(FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION))},
        {"hardwareVersionValue", value(code(FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION))},
    };
    for (const auto &[name, text] : values)
        findChild<QLabel *>(QLatin1String(name))->setText(text.isEmpty() ? tr("not known yet") : text);
}

void SystemSettingsPage::fillSystemTypes()
{
    PanelChoice::Entries entries;
    for (int type = 0; type < int(std::size(SystemTypeTexts)); ++type)
        entries.append({type, mLanguage.Text(SystemTypeTexts[type])});
    const QString reported = value(code(FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE));
    const int current = reported.isEmpty() ? PanelChoice::Unknown : reported.toInt();
    if (reported.isEmpty())
        entries.prepend({PanelChoice::Unknown, tr("not known yet")});
    else if (current >= entries.size())
        entries.append({current, tr("Another one (%1)").arg(current)});
    mpSystemType->show(entries, current);
}

void SystemSettingsPage::fillHomeLayouts()
{
    QMap<int, QString> layouts = vorlinmodel::customLayoutNames();
    layouts.insert(StandardLayoutId, {});
    if (mHomeLayout != 0 && !layouts.contains(mHomeLayout)) // one that only the panel has
        layouts.insert(mHomeLayout, {});
    PanelChoice::Entries entries;
    if (mHomeLayout == 0)
        entries.append({PanelChoice::Unknown, tr("not known yet")});
    for (auto layout = layouts.cbegin(); layout != layouts.cend(); ++layout) {
        const QString name = layoutName(layout.key(), *layout, mLanguage);
        entries.append({layout.key(), shortName(name.simplified())});
    }
    mpHomeLayout->show(entries, mHomeLayout == 0 ? PanelChoice::Unknown : mHomeLayout);
}

/// Empty when the panel can be cleared.
QString SystemSettingsPage::whyNotNow() const
{
    if (!mConnected)
        return tr("The panel is not connected.");
    if (mReset.isBusy())
        return tr("The panel is being cleared.");
    return mReading ? tr("The panel is being read.") : importing();
}

/// A firmware update waits for a panel, and may bring one back that answers nothing else; the network
/// settings are of this computer.
void SystemSettingsPage::showActions()
{
    const QString noPanel = mConnected ? QString() : tr("The panel is not connected.");
    const QString clearing = mReset.isBusy() ? tr("The panel is being cleared.") : QString();
    enableUnless(mpSystemType, noPanel);
    enableUnless(mpHomeLayout, noPanel.isEmpty() ? importing() : noPanel);
    enableUnless(mpSwitches, importing());
    for (QRadioButton *language : qAsConst(mLanguages))
        enableUnless(language, importing());
    for (const char *name : {"formatCard", "resetAll"})
        enableUnless(action(name), whyNotNow());
    enableUnless(action("fontLibrary"), noPanel.isEmpty() ? clearing : noPanel);
    enableUnless(action("firmwareUpdate"), clearing);
    mpStatus->setText(mReset.statusText());
    mpStatus->setVisible(!mpStatus->text().isEmpty());
}

void SystemSettingsPage::retranslate()
{
    mpCaption->setText(mLanguage.Text(CaptionText));
    for (int i = 0; i < int(std::size(LanguageTexts)); ++i) {
        mLanguages.at(i)->setText(mLanguage.Text(LanguageTexts[i]));
        mLanguages.at(i)->setChecked(mLanguage.language() == i);
    }
    for (QPushButton *button : qAsConst(mOpenButtons))
        button->setText(mLanguage.Text(OpenText));
    retranslateCaptions();
    retranslateActions();
    mpBrightness->retranslate();
    mpSwitches->retranslate();
    showVersions();
    fillSystemTypes();
    fillHomeLayouts();
    showActions();
}

void SystemSettingsPage::retranslateCaptions()
{
    const QStringList cards{tr("Program"), tr("Panel"), tr("Care of the panel"), tr("Switches"),
                            tr("Folders")};
    for (int i = 0; i < mCards.size(); ++i)
        mCards.at(i)->setCaption(cards.value(i));
    const QStringList rows{mLanguage.Text(LanguageText),
                           mLanguage.Text(vorlindesk::TextId::IpcVersion),
                           mLanguage.Text(vorlindesk::TextId::SoftwareVersion),
                           mLanguage.Text(vorlindesk::TextId::HardwareVersion),
                           mLanguage.Text(BrightnessText),
                           mLanguage.Text(SystemTypeText),
                           tr("Home layout:"),
                           tr("Folder of the logs:"),
                           tr("Folder of the settings:")};
    for (int i = 0; i < mCaptions.size(); ++i)
        mCaptions.at(i)->setText(rows.value(i));
}

void SystemSettingsPage::retranslateActions()
{
    const QStringList explanations{
        tr("Clears the panel. What is on this computer stays."),
        tr("Clears the panel and what is on this computer: keys, layouts and action lists."),
        tr("Sends a firmware file to the panel. The configuration is saved first."),
        tr("Sends a font file to the panel. The configuration is saved first."),
        tr("Addresses for a panel in a network. They are only written into the log: panels have no command "
           "for them yet."),
    };
    for (int i = 0; i < mActions.size(); ++i) {
        mActions.at(i).button->setText(mLanguage.Text(mActions.at(i).textId));
        mActions.at(i).explanation->setText(explanations.value(i));
    }
}
