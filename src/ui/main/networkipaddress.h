/// An editor of one IPv4 address in four parts.
#pragma once

#include <QWidget>
#include <array>

class QLineEdit;

class NetworkIpAddress : public QWidget
{
    Q_OBJECT
public:
    static constexpr int OctetCount = 4;

    explicit NetworkIpAddress(QWidget *parent);

    /// @return the four parts joined with "."; an empty one leaves two dots in a row.
    QString text() const;
    /// Fills the four parts. Changes nothing when @p text does not have exactly four.
    void setText(const QString &text);

private:
    void onOctetChanged(int index, const QString &text);

    std::array<QLineEdit *, OctetCount> mOctets;
};
