#include "systemsettingspage.h"

#include "base/language.h"
#include "base/paths.h"
#include "layoutnames.h"
#include "model/customlayouts.h"
#include "platform/desktop.h"
#include "ui_common/choicebox.h"
#include "ui_common/messagebox.h"
#include "ui_common/style.h"
#include "wire/functioncode.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int CaptionText = 10;
constexpr int LanguageText = 22;
constexpr int OpenText = 83;

struct LanguageEntry
{
    int value;
    int textId;
};
constexpr LanguageEntry Languages[] = {{0, 25}, {1, 23}, {2, 24}};

// Function codes of the values, in the order of the rows; the program's own version comes first.
constexpr FunctionCode Reported[] = {
    FunctionCode::MD_FUNCTION_CODE_SOFTWARE_VERSION, FunctionCode::MD_FUNCTION_CODE_HARDWARE_VERSION,
    FunctionCode::MD_FUNCTION_CODE_LCD_LIGHT,        FunctionCode::MD_FUNCTION_CODE_SYSTEM_TYPE,
    FunctionCode::MD_FUNCTION_CODE_CUSTOMLAYOUT_SET,
};

constexpr char HomeLayoutStyle[] = "#homeLayout {font-size: 14px;min-width: 220px;max-width: 320px;}"
                                   "#homeLayout::drop-down {border: none;width: 20px;}";

} // namespace

SystemSettingsPage::SystemSettingsPage(vorlindesk::LanguageManager &language, vorlindesk::IDesktop &desktop,
                                       QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
    , mDesktop(desktop)
    , mpCaption(new QLabel(this))
{
    setObjectName(QStringLiteral("systemSettingsPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page) + QString::fromLatin1(HomeLayoutStyle));
    mpCaption->setObjectName(QStringLiteral("caption"));
}

bool SystemSettingsPage::setup()
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 20);
    layout->setSpacing(20);
    layout->addWidget(mpCaption);
    mpRows = new QFormLayout;
    mpRows->setHorizontalSpacing(24);
    mpRows->setVerticalSpacing(14);
    mpRows->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    layout->addLayout(mpRows);
    layout->addStretch();

    mCaptions.append(new QLabel(this));
    mpRows->addRow(mCaptions.last(), languageChoice());
    for (const char *name :
         {"ownVersion", "softwareVersionValue", "hardwareVersionValue", "brightness", "systemType"})
        mValues.append(addRow(name));
    mCaptions.append(new QLabel(this));
    mpRows->addRow(mCaptions.last(), homeLayoutChoice());
    mValues.append(addRow("customLayout"));
    mCaptions.append(new QLabel(this));
    mpRows->addRow(mCaptions.last(), folderRow("openLogFolder", vorlindesk::Paths::logFolder()));
    mCaptions.append(new QLabel(this));
    mpRows->addRow(mCaptions.last(), folderRow("openDataFolder", vorlindesk::Paths::devConfigFolder()));
    retranslate();
    return true;
}

QLabel *SystemSettingsPage::addRow(const char *valueName)
{
    mCaptions.append(new QLabel(this));
    auto *value = new QLabel(this);
    value->setObjectName(QLatin1String(valueName));
    value->setTextFormat(Qt::PlainText); // most come from the panel
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mpRows->addRow(mCaptions.last(), value);
    return value;
}

QWidget *SystemSettingsPage::languageChoice()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(24);
    for (const LanguageEntry &entry : Languages) {
        auto *button = new QRadioButton(row);
        button->setObjectName(QStringLiteral("language%1").arg(entry.value));
        button->setChecked(mLanguage.language() == entry.value);
        connect(button, &QRadioButton::clicked, this,
                [this, value = entry.value] { mLanguage.setLanguage(value); });
        layout->addWidget(button);
        mLanguages.append(button);
    }
    layout->addStretch();
    return row;
}

QWidget *SystemSettingsPage::folderRow(const char *buttonName, const QString &folder)
{
    auto *row = new QWidget(this);
    row->setMaximumWidth(620); // or the button would be far from what it opens
    auto *path = new QLabel(QDir::toNativeSeparators(folder), row);
    path->setTextFormat(Qt::PlainText);
    path->setTextInteractionFlags(Qt::TextSelectableByMouse);
    path->setWordWrap(true);
    auto *open = new QPushButton(row);
    open->setObjectName(QLatin1String(buttonName));
    mOpenButtons.append(open);
    connect(open, &QPushButton::clicked, this, [this, folder] {
        if (!mDesktop.openFile(folder))
            MessageBox::warn(this, tr("The folder could not be opened: %1").arg(folder));
    });
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(path, 1);
    layout->addWidget(open);
    return row;
}

QWidget *SystemSettingsPage::homeLayoutChoice()
{
    mpHomeLayout = new ChoiceBox(this);
    mpHomeLayout->setObjectName(QStringLiteral("homeLayout"));
    connect(mpHomeLayout, QOverload<int>::of(&QComboBox::activated), this, [this] {
        const int layoutId = mpHomeLayout->currentData().toInt();
        if (layoutId != 0 && layoutId != mHomeLayout)
            emit sigHomeLayoutChosen(layoutId);
    });
    return mpHomeLayout;
}

void SystemSettingsPage::showHomeLayout(bool connected, int layoutId)
{
    mConnected = connected;
    mHomeLayout = layoutId;
    fillHomeLayouts();
}

void SystemSettingsPage::fillHomeLayouts()
{
    constexpr int longestName = 40;
    QVector<int> ids{StandardLayoutId};
    ids += vorlinmodel::customLayoutIds();
    if (mHomeLayout != 0 && !ids.contains(mHomeLayout)) // one that only the panel has
        ids.append(mHomeLayout);
    QVector<QPair<int, QString>> entries;
    if (mHomeLayout == 0)
        entries.append({0, tr("not known yet")});
    for (const int id : qAsConst(ids)) {
        const QString name = layoutName(id, mLanguage).simplified();
        entries.append({id, name.size() <= longestName ? name : name.left(longestName) + QChar(0x2026)});
    }
    if (entries != std::exchange(mHomeLayouts, entries)) { // else its list, which may be open, stays
        mpHomeLayout->clear();
        for (const auto &entry : qAsConst(entries))
            mpHomeLayout->addItem(entry.second, entry.first);
    }
    mpHomeLayout->setCurrentIndex(mpHomeLayout->findData(mHomeLayout));
    mpHomeLayout->setEnabled(mConnected);
    mpHomeLayout->setToolTip(mConnected ? QString() : tr("The panel is not connected."));
}

void SystemSettingsPage::refresh(const QMap<int, QString> &deviceValues)
{
    mDeviceValues = deviceValues;
    retranslate();
}

void SystemSettingsPage::retranslate()
{
    mpCaption->setText(mLanguage.Text(CaptionText));
    for (int i = 0; i < mLanguages.size(); ++i) {
        mLanguages.at(i)->setText(mLanguage.Text(Languages[i].textId));
        mLanguages.at(i)->setChecked(mLanguage.language() == Languages[i].value);
    }
    for (QPushButton *button : qAsConst(mOpenButtons))
        button->setText(mLanguage.Text(OpenText));

    const QStringList captions{mLanguage.Text(LanguageText),
                               mLanguage.Text(vorlindesk::TextId::IpcVersion),
                               mLanguage.Text(vorlindesk::TextId::SoftwareVersion),
                               mLanguage.Text(vorlindesk::TextId::HardwareVersion),
                               mLanguage.Text(108),
                               mLanguage.Text(113),
                               tr("Home layout:"),
                               tr("Custom layout:"),
                               tr("Folder of the logs:"),
                               tr("Folder of the settings:")};
    for (int i = 0; i < mCaptions.size(); ++i)
        mCaptions.at(i)->setText(captions.value(i));

    fillHomeLayouts();
    mValues.first()->setText(QCoreApplication::applicationVersion());
    for (int i = 1; i < mValues.size(); ++i) {
        const QString value = mDeviceValues.value(static_cast<int>(Reported[i - 1]));
        mValues.at(i)->setText(value.isEmpty() ? tr("not known yet") : value);
    }
}
