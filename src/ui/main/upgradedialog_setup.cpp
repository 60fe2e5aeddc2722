// How the upgrade dialog is built, and its texts.
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "ui_common/latesttask.h"
#include "ui_common/style.h"
#include "upgradedialog.h"
#include "upgradefeed.h"
#include "upgradeprogress.h"
#include "upgradetext.h"

#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// Rows of the text table.
constexpr int SendCaption = 68;
constexpr int ReceiveCaption = 69;
constexpr int FileCaption = 76;
constexpr int SelectFirmware = 71;
constexpr int FontFileCaption = 106;
constexpr int SelectFontFile = 104;
constexpr int UpgradeNow = 72;
constexpr int Clear = 73;
constexpr int FirmwareTitle = 110;
constexpr int FontTitle = 112;

constexpr QSize DialogSize(760, 560);
constexpr QSize SmallestSize(640, 440);
constexpr int FieldHeight = 30;
constexpr int TimeoutWidth = 80;
constexpr int StateLines = 3;     // of the longest text, a failure with its help
constexpr int ButtonPadding = 14; // beside the text; a style sheet with padding would lose the native frame

/// What the style sheets leave to the palette must be readable on their white, whatever the desktop's theme.
QPalette darkOnWhite(QPalette palette)
{
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, Qt::gray);
    }
    palette.setColor(QPalette::PlaceholderText, Qt::gray);
    palette.setColor(QPalette::Highlight, QColor(0, 160, 255));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QHBoxLayout *rowLayout(QWidget *row)
{
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(10);
    return layout;
}

} // namespace

bool HIDUpgradeDialog::setup()
{
    vorlindesk::LanguageManager *language = mContext.languageManager();
    if (!language || !mpThread || layout())
        return false;
    setStyleSheet(QString::fromLatin1(UpgradeText::DialogStyle));
    setPalette(darkOnWhite(palette()));
    setMinimumSize(SmallestSize);
    resize(DialogSize);
    mpTask = new LatestTask(this);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    layout->addWidget(mpSendCaption = label("sendCaption"));
    layout->addWidget(fileRow());
    layout->addWidget(mpFileInfo = label("fileInfo"));
    mpFileInfo->setWordWrap(true);
    layout->addWidget(serviceRow());
    layout->addWidget(mpProgress = new UpgradeProgress(this));
    layout->addWidget(mpStateLabel = label("state"));
    mpStateLabel->setWordWrap(true);
    mpStateLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    mpStateLabel->setMinimumHeight(StateLines *
                                   mpStateLabel->fontMetrics().lineSpacing()); // or all below jumps
    layout->addWidget(messageRow());
    layout->addWidget(mpMessages, 1);
    connect(mpProgress, &UpgradeProgress::sigTick, this, [this] { setState(mState); });
    connect(new UpgradeFeed(*mpThread, this), &UpgradeFeed::sigEvents, this, &HIDUpgradeDialog::onEvents);
    connect(language, &vorlindesk::LanguageManager::sigLanguageChanged, this, &HIDUpgradeDialog::retranslate);
    if (isUpgrading()) { // of a dialog that was closed
        mState = State::Running;
        mpProgress->begin();
    }
    retranslate();
    mpSelect->setFocus();
    return true;
}

QWidget *HIDUpgradeDialog::fileRow()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = rowLayout(row);
    mpFilePath = field("filePath");
    mpFilePath->setReadOnly(true);
    mpSelect = button("selectButton", &HIDUpgradeDialog::onSelectButtonClicked);
    mpUpgrade = button("upgradeButton", &HIDUpgradeDialog::onUpgradeButtonClicked);
    layout->addWidget(mpFileLabel = label("fileLabel"));
    layout->addWidget(mpFilePath, 1);
    layout->addWidget(mpSelect);
    layout->addWidget(mpUpgrade);
    return row;
}

QWidget *HIDUpgradeDialog::serviceRow()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = rowLayout(row);
    mpHidPath = field("hidPath");
    mpTimeout = field("timeout");
    mpTimeout->setFixedWidth(TimeoutWidth);
    mpTimeout->setValidator(new QIntValidator(0, MaxTimeout, mpTimeout));
    mpTimeout->setText(QStringLiteral("0"));
    QPushButton *setHidPath = button("setHidPathButton", &HIDUpgradeDialog::onSetHidPathButtonClicked);
    setHidPath->setText(QLatin1String(UpgradeText::SetHidPath));
    QPushButton *setTimeout = button("setTimeoutButton", &HIDUpgradeDialog::onSetTimeoutButtonClicked);
    setTimeout->setText(QLatin1String(UpgradeText::SetTimeout));
    layout->addWidget(mpHidPath, 1);
    layout->addWidget(setHidPath);
    layout->addSpacing(20);
    QLabel *unit = label("timeoutUnit");
    unit->setText(QStringLiteral("ms"));
    layout->addWidget(mpTimeout);
    layout->addWidget(unit);
    layout->addWidget(setTimeout);
    return row;
}

QWidget *HIDUpgradeDialog::messageRow()
{
    auto *row = new QWidget(this);
    QHBoxLayout *layout = rowLayout(row);
    mpClear = button("clearButton", &HIDUpgradeDialog::onClearSendMessageButtonClicked);
    layout->addWidget(mpReceiveCaption = label("receiveCaption"));
    layout->addStretch();
    layout->addWidget(mpClear);
    mpMessages = new QPlainTextEdit(this);
    mpMessages->setObjectName(QStringLiteral("messages"));
    mpMessages->setStyleSheet(QString::fromLatin1(UpgradeText::FieldStyle) +
                              QString::fromLatin1(UpgradeText::MessageFont));
    mpMessages->verticalScrollBar()->setStyleSheet(QString::fromLatin1(Style::ScrollBars));
    mpMessages->setReadOnly(true);
    mpMessages->setUndoRedoEnabled(false);
    mpMessages->setMaximumBlockCount(MaxLines);
    return row;
}

QLabel *HIDUpgradeDialog::label(const char *name)
{
    auto *result = new QLabel(this);
    result->setObjectName(QLatin1String(name));
    result->setTextFormat(Qt::PlainText);
    result->setStyleSheet(QString::fromLatin1(UpgradeText::LabelStyle));
    return result;
}

QPushButton *HIDUpgradeDialog::button(const char *name, void (HIDUpgradeDialog::*slot)())
{
    auto *result = new QPushButton(this);
    result->setObjectName(QLatin1String(name));
    result->setStyleSheet(QString::fromLatin1(UpgradeText::FieldStyle));
    result->setFixedHeight(FieldHeight);
    result->setAutoDefault(false); // Enter in a field must not start an upgrade
    connect(result, &QPushButton::clicked, this, slot);
    return result;
}

QLineEdit *HIDUpgradeDialog::field(const char *name)
{
    auto *result = new QLineEdit(this);
    result->setObjectName(QLatin1String(name));
    result->setStyleSheet(QString::fromLatin1(UpgradeText::FieldStyle));
    result->setFixedHeight(FieldHeight);
    return result;
}

void HIDUpgradeDialog::retranslate()
{
    const vorlindesk::LanguageManager &language = *mContext.languageManager();
    const bool font = mMode == Mode::FontFile;
    setWindowTitle(language.Text(font ? FontTitle : FirmwareTitle));
    mpSendCaption->setText(language.Text(SendCaption));
    mpReceiveCaption->setText(language.Text(ReceiveCaption));
    mpFileLabel->setText(language.Text(font ? FontFileCaption : FileCaption));
    mpSelect->setText(language.Text(font ? SelectFontFile : SelectFirmware));
    mpUpgrade->setText(language.Text(UpgradeNow));
    mpClear->setText(language.Text(Clear));
    mpHidPath->setPlaceholderText(tr("HID path of the panel"));
    mpTimeout->setToolTip(tr("Milliseconds between two blocks"));
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setMinimumWidth(button->fontMetrics().horizontalAdvance(button->text()) + 2 * ButtonPadding);
    mpProgress->retranslate();
    setState(mState);
}

QString HIDUpgradeDialog::problemText() const
{
    switch (mFile.problem) {
    case UpgradeFile::Problem::None:
        return {};
    case UpgradeFile::Problem::Missing:
        return tr("The file does not exist.");
    case UpgradeFile::Problem::Empty:
        return tr("The file is empty.");
    case UpgradeFile::Problem::TooLarge:
        return tr("The file is too large: %L1 bytes. The panel takes at most %L2 bytes.")
            .arg(mFile.size)
            .arg(UpgradeFile::Largest);
    case UpgradeFile::Problem::Unreadable:
        return tr("The file cannot be read to its end. %1").arg(mFile.reason);
    }
    return {};
}

QString HIDUpgradeDialog::fileText() const
{
    if (mpFilePath->text().isEmpty())
        return tr("No file is chosen.");
    if (mState == State::Checking)
        return tr("The file is being read.");
    if (mFile.problem != UpgradeFile::Problem::None)
        return problemText();
    return tr("%L1 bytes, CRC-16 0x%2").arg(mFile.size).arg(mFile.crc, 4, 16, QLatin1Char('0'));
}

QString HIDUpgradeDialog::stateText() const
{
    switch (mState) {
    case State::Idle:
        return tr("Keep the panel plugged in until the upgrade has ended.");
    case State::Checking:
        return mBackup ? tr("The file is checked and the configuration is saved.")
                       : tr("The file is checked.");
    case State::Waiting:
        return tr("Waiting for the panel. The upgrade starts as soon as it answers; close this window to "
                  "give up.");
    case State::Running:
        if (mpProgress->silence() > mPatience)
            return tr("The panel does not answer. If this lasts, pull its plug. ") + failureHelp();
        return tr("The upgrade runs. Do not unplug the panel.");
    case State::Succeeded:
        return tr("The upgrade is done. The panel restarts by itself.");
    case State::Failed:
        return (mCrcFailed ? tr("The panel received something else than the file. ")
                           : tr("The upgrade did not come to its end. ")) +
               failureHelp();
    }
    return {};
}

QString HIDUpgradeDialog::failureHelp() const
{
    const QString help =
        tr("Power the panel off and on, choose the file again and start the upgrade once more.");
    if (mBackupFolder.isEmpty())
        return help;
    return help + QLatin1Char(' ') +
           tr("Your configuration is saved in %1").arg(QDir::toNativeSeparators(mBackupFolder));
}
