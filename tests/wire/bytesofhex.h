/// Literal bytes for the tests: "03 02" is two bytes; blanks do not count.
#pragma once

#include "support/texts.h"

#include <QByteArray>

inline QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

inline const quint8 *data(const QByteArray &bytes)
{
    return reinterpret_cast<const quint8 *>(bytes.constData());
}
