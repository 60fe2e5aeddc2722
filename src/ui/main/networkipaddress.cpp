#include "networkipaddress.h"

#include "upgradetext.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>

namespace {

constexpr int MaxDigits = 3;
constexpr QSize OctetSize(50, 30);
constexpr int DotHeight = 30;
constexpr char Octet[] = "^([0-9]|[1-9][0-9]|1[0-9][0-9]|2[0-4][0-9]|25[0-5])$";

QLineEdit *octetEdit(int index, QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QStringLiteral("octet%1").arg(index));
    edit->setFixedSize(OctetSize);
    edit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    edit->setMaxLength(MaxDigits);
    edit->setStyleSheet(QString::fromLatin1(NetworkText::OctetStyle));
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QString::fromLatin1(Octet)), edit));
    return edit;
}

QLabel *dot(QWidget *parent)
{
    auto *label = new QLabel(QStringLiteral("."), parent);
    label->setFixedHeight(DotHeight);
    label->setStyleSheet(QString::fromLatin1(NetworkText::DotStyle));
    label->setAlignment(Qt::AlignBottom);
    return label;
}

} // namespace

NetworkIpAddress::NetworkIpAddress(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(
        2); // with any font, 4 fields of 50 and 3 dots fit into the 240 pixels that a row gives
    for (int i = 0; i < OctetCount; ++i) {
        if (i > 0)
            layout->addWidget(dot(this));
        QLineEdit *edit = mOctets[size_t(i)] = octetEdit(i, this);
        layout->addWidget(edit);
        connect(edit, &QLineEdit::textChanged, this,
                [this, i](const QString &text) { onOctetChanged(i, text); });
    }
    setFocusProxy(mOctets.front());
}

QString NetworkIpAddress::text() const
{
    QStringList parts;
    for (const QLineEdit *edit : mOctets)
        parts << edit->text();
    return parts.join(QLatin1Char('.'));
}

void NetworkIpAddress::setText(const QString &text)
{
    const QStringList parts = text.split(QLatin1Char('.'));
    if (parts.size() != OctetCount)
        return;
    for (int i = 0; i < OctetCount; ++i)
        mOctets[size_t(i)]->setText(parts.at(i));
}

/// Moves on behind a third digit; never back, not even when a part was emptied.
void NetworkIpAddress::onOctetChanged(int index, const QString &text)
{
    if (text.size() != MaxDigits || index + 1 == OctetCount)
        return;
    QLineEdit *next = mOctets[size_t(index) + 1];
    next->setFocus(Qt::OtherFocusReason);
    next->selectAll();
}
