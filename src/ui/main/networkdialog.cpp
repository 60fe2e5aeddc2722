#include "networkdialog.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "networkipaddress.h"
#include "upgradetext.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

using vorlindesk::Log;
using vorlindesk::LogLevel;

constexpr int TitleText = 30;
constexpr QSize DialogSize(800, 550);
constexpr QSize LabelSize(70, 30);
constexpr QSize AddressSize(240, 30);
constexpr QSize ButtonSize(320, 40);
constexpr int RowSpacing = 10;

QPushButton *button(const char *text, const char *name, QWidget *parent)
{
    auto *result = new QPushButton(QString::fromUtf8(text), parent);
    result->setObjectName(QLatin1String(name));
    result->setFixedSize(ButtonSize);
    result->setStyleSheet(QString::fromLatin1(NetworkText::ButtonStyle) +
                          QString::fromLatin1(NetworkText::ButtonShape));
    result->setAutoDefault(false); // Enter behind an address must not press one of them
    return result;
}

} // namespace

NetworkSetDialog::NetworkSetDialog(vorlindesk::IFrameworkContext &context, QWidget *parent)
    : QDialog(parent, Qt::WindowTitleHint | Qt::WindowCloseButtonHint)
    , mContext(context)
{
    setObjectName(QStringLiteral("networkSetDialog"));
    setStyleSheet(QString::fromLatin1(NetworkText::DialogStyle));
    resize(DialogSize);
}

bool NetworkSetDialog::setup()
{
    vorlindesk::LanguageManager *language = mContext.languageManager();
    if (!language || layout())
        return false;
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(20);
    layout->addStretch();
    mpIpAddress = addRow(layout, NetworkText::IpAddressLabel, "ipAddress");
    mpNetmask = addRow(layout, NetworkText::NetmaskLabel, "netmask");
    mpGateway = addRow(layout, NetworkText::GatewayLabel, "gateway");
    layout->addSpacing(20);
    QPushButton *set = button(NetworkText::SetButton, "setButton", this);
    QPushButton *factorySet = button(NetworkText::FactorySetButton, "factorySetButton", this);
    layout->addWidget(set, 0, Qt::AlignHCenter);
    layout->addWidget(factorySet, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(set, &QPushButton::clicked, this, &NetworkSetDialog::onSetBtnClicked);
    connect(factorySet, &QPushButton::clicked, this, &NetworkSetDialog::onFactorySetBtnClicked);
    connect(language, &vorlindesk::LanguageManager::sigLanguageChanged, this, &NetworkSetDialog::retranslate);
    retranslate();
    return true;
}

NetworkIpAddress *NetworkSetDialog::addRow(QBoxLayout *layout, const char *label, const char *name)
{
    auto *caption = new QLabel(QLatin1String(label), this);
    caption->setFixedSize(LabelSize);
    caption->setStyleSheet(QString::fromLatin1(NetworkText::LabelStyle));
    caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *address = new NetworkIpAddress(this);
    address->setObjectName(QLatin1String(name));
    address->setFixedSize(AddressSize);
    caption->setBuddy(address);
    auto *row = new QHBoxLayout;
    row->setSpacing(RowSpacing);
    row->addStretch();
    row->addWidget(caption);
    row->addWidget(address);
    row->addStretch();
    layout->addLayout(row);
    return address;
}

void NetworkSetDialog::retranslate()
{
    setWindowTitle(mContext.languageManager()->Text(TitleText)); // all other texts stay as they are
}

void NetworkSetDialog::onSetBtnClicked()
{
    Log(LogLevel::Info, NetworkText::IpAddress, qUtf8Printable(mpIpAddress->text()));
    Log(LogLevel::Info, NetworkText::Netmask, qUtf8Printable(mpNetmask->text()));
    Log(LogLevel::Info, NetworkText::Gateway, qUtf8Printable(mpGateway->text()));
}

void NetworkSetDialog::onFactorySetBtnClicked()
{
    Log(LogLevel::Info, NetworkText::FactorySet);
}
