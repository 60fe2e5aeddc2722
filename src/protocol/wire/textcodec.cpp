#include "textcodec.h"

#include "bytes.h"

#include <QTextCodec>
#include <algorithm>
#include <limits>

namespace TextCodec {

namespace {

constexpr char Replacement[] = "?";
constexpr int Utf16UnitSize = 2;

/// Encodes one character after the other, so that a cut never splits one and every lacking one is seen.
class GbkEncoder
{
public:
    GbkEncoder()
        : mpCodec(QTextCodec::codecForName("GBK"))
        , mState(QTextCodec::IgnoreHeader)
    {}

    /// @return the one or two bytes of @p character (a surrogate pair counts as one); empty when GBK lacks
    /// it.
    QByteArray encode(QStringView character)
    {
        if (character.size() == 1 && character.front().unicode() < 0x80)
            return QByteArray(1, Bytes::low(character.front().unicode()));
        // GBK ends with the basic plane. Half a pair would wait in the codec and spoil the next character.
        if (character.size() != 1 || character.front().isSurrogate() || mpCodec == nullptr)
            return {};
        mState.invalidChars = 0;
        const QByteArray bytes = mpCodec->fromUnicode(character.data(), 1, &mState);
        return mState.invalidChars == 0 && isDoubleByte(bytes) ? bytes : QByteArray();
    }

private:
    /// Codecs that answer to the name differ: one yields four-byte sequences of a larger set, one 0x80 for
    /// the euro sign. The panel knows neither.
    static bool isDoubleByte(const QByteArray &bytes)
    {
        const quint8 lead = Bytes::at(bytes, 0);
        const quint8 trail = Bytes::at(bytes, 1);
        return bytes.size() == 2 && lead >= 0x81 && lead <= 0xFE && trail >= 0x40 && trail <= 0xFE &&
               trail != 0x7F;
    }

    QTextCodec *mpCodec;
    QTextCodec::ConverterState mState;
};

/// Calls @p visit with each character of @p text (surrogate pairs whole) until it returns false.
template <typename Visitor>
void forEachCharacter(const QString &text, Visitor visit)
{
    const QStringView all(text);
    for (int i = 0; i < text.size();) {
        const bool isPair =
            i + 1 < text.size() && text.at(i).isHighSurrogate() && text.at(i + 1).isLowSurrogate();
        const int units = isPair ? 2 : 1;
        if (!visit(all.mid(i, units)))
            return;
        i += units;
    }
}

} // namespace

QByteArray toGbk(const QString &text, int maxBytes)
{
    GbkEncoder encoder;
    QByteArray result;
    forEachCharacter(text, [&](QStringView character) {
        QByteArray bytes = encoder.encode(character);
        if (bytes.isEmpty())
            bytes = Replacement;
        if (result.size() + bytes.size() > maxBytes)
            return false;
        result.append(bytes);
        return true;
    });
    return result;
}

QByteArray toGbk(const QString &text)
{
    return toGbk(text, std::numeric_limits<int>::max());
}

QString fromGbk(const QByteArray &bytes)
{
    const QByteArray counted = Bytes::untilNul(bytes);
    const QTextCodec *codec = QTextCodec::codecForName("GBK");
    return codec != nullptr ? codec->toUnicode(counted) : QString::fromLatin1(counted);
}

QString charactersNotInGbk(const QString &text)
{
    GbkEncoder encoder;
    QString lacking;
    forEachCharacter(text, [&](QStringView character) {
        if (encoder.encode(character).isEmpty() && !QStringView(lacking).contains(character))
            lacking.append(character);
        return true;
    });
    return lacking;
}

QByteArray toUtf8(const QString &text, int maxBytes)
{
    QByteArray bytes = text.toUtf8();
    if (bytes.size() <= maxBytes)
        return bytes;
    int end = std::max(maxBytes, 0);
    while (end > 0 &&
           (Bytes::at(bytes, end) & 0xC0) == 0x80) // a continuation byte: its character began earlier
        --end;
    return bytes.left(end);
}

QByteArray toOutput(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size() * Utf16UnitSize);
    for (const QChar unit : text)
        Bytes::appendLittleEndian(bytes, unit.unicode());
    return bytes;
}

QByteArray toOutput(const QString &text, int maxBytes)
{
    int units = std::min(text.size(), std::max(maxBytes, 0) / Utf16UnitSize);
    if (units > 0 && units < text.size() && text.at(units - 1).isHighSurrogate() &&
        text.at(units).isLowSurrogate())
        --units;
    return toOutput(text.left(units));
}

QString fromOutput(const QByteArray &bytes)
{
    QString text;
    for (int offset = 0; bytes.size() - offset >= Utf16UnitSize; offset += Utf16UnitSize) {
        const auto unit = qFromLittleEndian<quint16>(bytes.constData() + offset);
        if (unit == 0)
            break;
        text.append(QChar(unit));
    }
    return text;
}

QString fromUtf8(const QByteArray &bytes)
{
    return QString::fromUtf8(Bytes::untilNul(bytes));
}

} // namespace TextCodec
