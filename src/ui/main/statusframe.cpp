#include "statusframe.h"

#include "base/language.h"
#include "ui_common/knownpicture.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

using vorlindesk::TextId;

namespace {

constexpr int IconSide = 28; // pixels

/// The icon of the state; a plain disc when the resource is missing, since the state must be seen in any
/// case.
QPixmap connectionIcon(bool connected)
{
    const QImage icon = knownPicture(connected ? QStringLiteral(":/icon/connected.png")
                                               : QStringLiteral(":/icon/disconnected.png"),
                                     "PNG");
    if (!icon.isNull())
        return QPixmap::fromImage(
            icon.scaled(IconSide, IconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    QPixmap disc(IconSide, IconSide);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(connected ? Style::Highlight : Style::InactiveCell));
    painter.drawEllipse(disc.rect().adjusted(4, 4, -4, -4));
    return disc;
}

QLabel *textLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText); // versions come from the panel
    return label;
}

/// A version is a foreign text: however long, it must not push the window out of shape.
void showVersion(QLabel &label, const QString &caption, const QString &version)
{
    constexpr int longest = 24;
    QString shown = version.isEmpty() ? QStringLiteral("–") : version;
    if (shown.size() > longest)
        shown = shown.left(longest - 1) + QStringLiteral("…");
    label.setText(caption.trimmed() + QLatin1Char(' ') + shown);
    label.setToolTip(version.toHtmlEscaped());
}

} // namespace

StatusFrame::StatusFrame(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QFrame(parent)
    , mLanguage(language)
    , mpConnectionIcon(new QLabel(this))
    , mpSoftwareVersion(textLabel(QStringLiteral("softwareVersion"), this))
    , mpHardwareVersion(textLabel(QStringLiteral("hardwareVersion"), this))
    , mpReadButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("statusframe"));
    setStyleSheet(QString::fromLatin1(Style::StatusFrame) + QString::fromLatin1(Style::Button));
    mpConnectionIcon->setObjectName(QStringLiteral("connectionIcon"));
    mpReadButton->setObjectName(QStringLiteral("readDeviceConfig"));
    connect(mpReadButton, &QPushButton::clicked, this, &StatusFrame::sigReadDeviceConfig);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 8, 20, 8);
    layout->setSpacing(24);
    layout->addWidget(mpConnectionIcon);
    layout->addWidget(mpSoftwareVersion);
    layout->addWidget(mpHardwareVersion);
    layout->addStretch();
    layout->addWidget(mpReadButton);
    setConnected(false);
    retranslate();
}

void StatusFrame::setConnected(bool connected)
{
    mConnected = connected;
    mpConnectionIcon->setPixmap(connectionIcon(connected));
    const QString state = connected ? tr("Connected") : tr("Not connected");
    mpConnectionIcon->setToolTip(state);
    mpConnectionIcon->setAccessibleName(state);
    refreshButton();
}

void StatusFrame::setHardwareVersion(const QString &version)
{
    mHardwareVersion = version;
    retranslate();
}

void StatusFrame::setSoftwareVersion(const QString &version)
{
    mSoftwareVersion = version;
    retranslate();
}

void StatusFrame::setReading(bool reading)
{
    mReading = reading;
    refreshButton();
}

void StatusFrame::refreshButton()
{
    mpReadButton->setEnabled(mConnected && !mReading);
}

void StatusFrame::retranslate()
{
    showVersion(*mpSoftwareVersion, mLanguage.Text(TextId::SoftwareVersion), mSoftwareVersion);
    showVersion(*mpHardwareVersion, mLanguage.Text(TextId::HardwareVersion), mHardwareVersion);
    mpReadButton->setText(mLanguage.Text(TextId::ReadDeviceConfig));
    const QString state = mConnected ? tr("Connected") : tr("Not connected");
    mpConnectionIcon->setToolTip(state);
    mpConnectionIcon->setAccessibleName(state);
}
