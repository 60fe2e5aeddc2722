#include "statusframe.h"

#include "base/language.h"
#include "ui_common/knownpicture.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

using vorlindesk::TextId;

namespace {

constexpr int IconSide = 28; // pixels

/// The icon of the state; a plain disc when the resource is missing, since the state must be seen in any
/// case.
QPixmap connectionIcon(bool connected)
{
    constexpr int density = 2; // of the drawing; plain screens scale it down
    const QImage icon = knownPicture(connected ? QStringLiteral(":/icon/connected@2x.png")
                                               : QStringLiteral(":/icon/disconnected@2x.png"),
                                     "PNG");
    if (!icon.isNull()) {
        QPixmap pixmap = QPixmap::fromImage(icon.scaled(IconSide * density, IconSide * density,
                                                        Qt::KeepAspectRatio, Qt::SmoothTransformation));
        pixmap.setDevicePixelRatio(density);
        return pixmap;
    }
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
    , mpActivity(textLabel(QStringLiteral("activity"), this))
    , mpSoftwareVersion(textLabel(QStringLiteral("softwareVersion"), this))
    , mpHardwareVersion(textLabel(QStringLiteral("hardwareVersion"), this))
    , mpReadButton(new QPushButton(this))
{
    setObjectName(QStringLiteral("statusframe"));
    setStyleSheet(QString::fromLatin1(Style::StatusFrame) + QString::fromLatin1(Style::Button));
    mpConnectionIcon->setObjectName(QStringLiteral("connectionIcon"));
    mpReadButton->setObjectName(QStringLiteral("readDeviceConfig"));
    connect(mpReadButton, &QPushButton::clicked, this, &StatusFrame::sigReadDeviceConfig);

    mpActivity->setWordWrap(true);
    auto *versions = new QVBoxLayout;
    versions->setSpacing(2);
    versions->addStretch();
    versions->addWidget(mpSoftwareVersion);
    versions->addWidget(mpHardwareVersion);
    versions->addStretch();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 4, 20, 4);
    layout->setSpacing(20);
    layout->addWidget(mpConnectionIcon);
    layout->addWidget(mpActivity, 1);
    layout->addLayout(versions);
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

void StatusFrame::showActivity(Activity activity, int received, int announced)
{
    mActivity = activity;
    mReceived = received;
    mAnnounced = announced;
    mpActivity->setText(activityText());
}

QString StatusFrame::activityText() const
{
    switch (mActivity) {
    case Activity::Looking:
        return tr("Looking for the panel...");
    case Activity::Reading:
        if (mAnnounced == 0)
            return tr("Reading the configuration...");
        return tr("Reading the configuration... %1 of %2 keys").arg(mReceived).arg(mAnnounced);
    case Activity::ReadIncomplete:
        return tr("Connected. The configuration was not read to its end.");
    case Activity::Connected:
        break;
    }
    return tr("Connected");
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
    mpActivity->setText(activityText());
    const QString state = mConnected ? tr("Connected") : tr("Not connected");
    mpConnectionIcon->setToolTip(state);
    mpConnectionIcon->setAccessibleName(state);
}
