#include "vorlinmimedata.h"

#include <QDataStream>

namespace vorlindesk {

void VorlinMimeData::store(const QString &format)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << strData1 << strData2;
    setData(format, bytes);
}

void VorlinMimeData::load(const QMimeData &data, const QString &format)
{
    strData1 = QString();
    strData2 = QString();
    QDataStream stream(data.data(format));
    QString first;
    QString second;
    stream >> first >> second;
    if (stream.status() != QDataStream::Ok)
        return;
    strData1 = first;
    strData2 = second;
}

} // namespace vorlindesk
