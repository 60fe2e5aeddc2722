// How the page of the system settings is built.
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/paths.h"
#include "brightnessrow.h"
#include "caredialogs.h"
#include "panelchoice.h"
#include "platform/desktop.h"
#include "settingscard.h"
#include "settingscolumns.h"
#include "settingsswitches.h"
#include "systemsettingspage.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"

#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

using vorlinmodel::RequestKind;

namespace {

constexpr int ChoiceWidth = 320; // pixels; of the boxes that offer layouts and system types

constexpr char PageStyle[] = "#systemSettingsPage QLabel {background: transparent;}"
                             "#settingsScroll, #settingsColumns {background: transparent;border: none;}"
                             "QComboBox {font-size: 14px;}"
                             "QComboBox::drop-down {border: none;width: 20px;}";

} // namespace

SystemSettingsPage::SystemSettingsPage(EditorContext &context, Backups &backups,
                                       vorlindesk::IDesktop &desktop, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mLanguage(*context.framework.languageManager())
    , mDesktop(desktop)
    , mBackups(backups)
    , mReset(context, backups, this)
    , mpCaption(new QLabel(this))
{
    setObjectName(QStringLiteral("systemSettingsPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page) + QString::fromLatin1(SettingsCard::Style) +
                  QString::fromLatin1(PageStyle));
    mpCaption->setObjectName(QStringLiteral("caption"));
    connect(&mReset, &PanelReset::sigChanged, this, &SystemSettingsPage::showActions);
}

bool SystemSettingsPage::setup()
{
    using Side = SettingsColumns::Side;
    auto *scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("settingsScroll"));
    scroll->setWidgetResizable(true);
    mpColumns = new SettingsColumns(scroll);
    mpColumns->setObjectName(QStringLiteral("settingsColumns"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 8, 8);
    layout->setSpacing(12);
    layout->addWidget(mpCaption);
    layout->addWidget(scroll, 1);

    mCards = {programCard(), panelCard(), careCard(), switchesCard(), foldersCard()};
    const Side sides[] = {Side::Left, Side::Left, Side::Left, Side::Right, Side::Right};
    for (int i = 0; i < mCards.size(); ++i)
        mpColumns->add(mCards.at(i), sides[i]);
    scroll->setWidget(mpColumns);
    retranslate();
    return true;
}

void SystemSettingsPage::addSection(QWidget *section)
{
    auto *card = new SettingsCard(this);
    card->addWide(section);
    card->setCaption(section->windowTitle());
    connect(section, &QWidget::windowTitleChanged, card, &SettingsCard::setCaption);
    mpColumns->insertBefore(mCards.at(3), card);
}

SettingsCard *SystemSettingsPage::programCard()
{
    auto *card = new SettingsCard(this);
    mCaptions << card->addRow(languageChoice());
    for (const char *name : {"ownVersion", "softwareVersionValue", "hardwareVersionValue"})
        mCaptions << card->addRow(valueLabel(name));
    return card;
}

SettingsCard *SystemSettingsPage::panelCard()
{
    auto *card = new SettingsCard(this);
    mpBrightness = new BrightnessRow(mContext.framework, card);
    mCaptions << card->addRow(mpBrightness);
    mpSystemType = new PanelChoice("systemType", card);
    connect(mpSystemType, &PanelChoice::sigChosen, this, [this](int type) {
        mContext.framework.sendRequest(RequestKind::MD_FUNCTION_CODE_SYSTEM_TYPE, type);
    });
    mpHomeLayout = new PanelChoice("homeLayout", card);
    connect(mpHomeLayout, &PanelChoice::sigChosen, this, &SystemSettingsPage::sigHomeLayoutChosen);
    for (PanelChoice *choice : {mpSystemType, mpHomeLayout}) {
        choice->setMaximumWidth(ChoiceWidth);
        mCaptions << card->addRow(choice);
    }
    addActionRow(*card, "formatCard", 107, [this] { mReset.start(PanelReset::Kind::Format); });
    addActionRow(*card, "resetAll", 111, [this] { mReset.start(PanelReset::Kind::ResetAll); });
    mpStatus = explanationLabel(card);
    mpStatus->setObjectName(QStringLiteral("status"));
    mpStatus->setTextInteractionFlags(Qt::TextSelectableByMouse);
    card->addWide(mpStatus);
    return card;
}

SettingsCard *SystemSettingsPage::careCard()
{
    auto *card = new SettingsCard(this);
    addActionRow(*card, "firmwareUpdate", 110,
                 [this] { CareDialogs::openFirmwareUpdate(mContext, mBackups, this); });
    addActionRow(*card, "fontLibrary", 112,
                 [this] { CareDialogs::openFontLibrary(mContext, mBackups, this); });
    addActionRow(*card, "networkSettings", 30, [this] { CareDialogs::openNetworkSettings(mContext, this); });
    return card;
}

SettingsCard *SystemSettingsPage::switchesCard()
{
    auto *card = new SettingsCard(this);
    mpSwitches = new SettingsSwitches(card);
    card->addWide(mpSwitches);
    return card;
}

SettingsCard *SystemSettingsPage::foldersCard()
{
    auto *card = new SettingsCard(this);
    mCaptions << card->addRow(folderRow("openLogFolder", vorlindesk::Paths::logFolder()));
    mCaptions << card->addRow(folderRow("openDataFolder", vorlindesk::Paths::devConfigFolder()));
    return card;
}

QLabel *SystemSettingsPage::valueLabel(const char *name)
{
    auto *value = new QLabel(this);
    value->setObjectName(QLatin1String(name));
    value->setTextFormat(Qt::PlainText); // most come from the panel
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return value;
}

QWidget *SystemSettingsPage::languageChoice()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(24);
    for (const int value : {0, 1, 2}) {
        auto *button = new QRadioButton(row);
        button->setObjectName(QStringLiteral("language%1").arg(value));
        connect(button, &QRadioButton::clicked, this,
                [this, value] { mContext.framework.languageManager()->setLanguage(value); });
        layout->addWidget(button);
        mLanguages.append(button);
    }
    layout->addStretch();
    return row;
}

QWidget *SystemSettingsPage::folderRow(const char *buttonName, const QString &folder)
{
    auto *row = new QWidget(this);
    auto *path = valueLabel("folder");
    path->setText(QDir::toNativeSeparators(folder));
    path->setWordWrap(true);
    auto *open = new QPushButton(row);
    open->setObjectName(QLatin1String(buttonName));
    mOpenButtons.append(open);
    connect(open, &QPushButton::clicked, this, [this, folder] {
        if (!mDesktop.openFile(folder))
            MessageBox::warn(window(),
                             tr("The folder could not be opened: %1").arg(QDir::toNativeSeparators(folder)));
    });
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(path, 1);
    layout->addWidget(open);
    return row;
}

void SystemSettingsPage::addActionRow(SettingsCard &card, const char *name, int textId,
                                      const std::function<void()> &act)
{
    auto *button = new QPushButton(&card);
    button->setObjectName(QLatin1String(name));
    connect(button, &QPushButton::clicked, this, act);
    mActions.append({button, textId, explanationLabel(&card)});
    card.addActionRow(button, mActions.last().explanation);
}
