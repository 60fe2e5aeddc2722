#include "configfile.h"

#include "model/functionids.h"
#include "wire/actionlist.h"
#include "wire/textcodec.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace ConfigFile {
namespace {

constexpr char Magic[] = "VDSCRIPT";
constexpr int MagicSize = 8;
constexpr int HeaderSizeOffset = 10;
constexpr int SectionCountOffset = 16;
constexpr int SmallestHeader = 24;
constexpr int SectionHead = 20;
constexpr int LengthOffset = 8;
constexpr int DataChecksumOffset = 12;
constexpr int HeadChecksumOffset = 16;
constexpr int ChecksumSize = 4;
constexpr int PrefixSize = 4; // length of the first of two parts

template <class Integer>
Integer number(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Integer>(bytes.constData() + offset);
}

/// CRC-32 with the reflected polynomial 0xEDB88320, bit by bit: files are small, and this is easily checked.
quint32 checksum(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFF;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
    }
    return ~crc;
}

struct Section
{
    QByteArray type;
    PanelKeyId id;
    QByteArray data;
};

/// @return the parts of "u32 length of the first, first, second".
std::optional<QPair<QByteArray, QByteArray>> parts(const QByteArray &data)
{
    if (data.size() < PrefixSize || number<quint32>(data, 0) > quint32(data.size() - PrefixSize))
        return std::nullopt;
    const int length = int(number<quint32>(data, 0));
    return qMakePair(data.mid(PrefixSize, length), data.mid(PrefixSize + length));
}

/// The panel's form of a list that the file has as text.
QByteArray actionsOf(const QByteArray &json)
{
    QVector<ActionList::Action> actions;
    for (const QJsonValue value : QJsonDocument::fromJson(json).array()) {
        const QJsonObject step = value.toObject();
        actions.append({static_cast<qint8>(step.value(QLatin1String("fid")).toInt()),
                        static_cast<quint16>(step.value(QLatin1String("delay")).toInt()),
                        step.value(QLatin1String("url")).toString()});
    }
    return ActionList::encode(actions).value;
}

class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : mBytes(bytes)
    {}

    std::optional<Keys> run()
    {
        const int header = headerSize();
        if (header == 0)
            return std::nullopt;
        mOffset = header;
        for (quint32 left = number<quint32>(mBytes, SectionCountOffset); left > 0; --left) {
            const auto section = nextSection();
            if (!section || !take(*section))
                return std::nullopt;
        }
        return mOffset == mBytes.size() ? std::make_optional(mKeys) : std::nullopt;
    }

private:
    int headerSize() const
    {
        const int size = mBytes.size() < SmallestHeader ? 0 : number<quint16>(mBytes, HeaderSizeOffset);
        if (!isOne(mBytes) || size < SmallestHeader || size > mBytes.size())
            return 0;
        const int end = size - ChecksumSize;
        return number<quint32>(mBytes, end) == checksum(mBytes.left(end)) ? size : 0;
    }

    std::optional<Section> nextSection()
    {
        const QByteArray head = mBytes.mid(mOffset, SectionHead);
        if (head.size() < SectionHead ||
            number<quint32>(head, HeadChecksumOffset) != checksum(head.left(HeadChecksumOffset)))
            return std::nullopt;
        const quint32 length = number<quint32>(head, LengthOffset);
        mOffset += SectionHead;
        if (length > quint32(mBytes.size() - mOffset))
            return std::nullopt;
        const Section section{head.left(4),
                              {quint8(head.at(4)), quint8(head.at(5)), quint8(head.at(6))},
                              mBytes.mid(mOffset, int(length))};
        mOffset += int(length);
        if (number<quint32>(head, DataChecksumOffset) != checksum(section.data))
            return std::nullopt;
        return section;
    }

    /// @return false when the data are not of the form of their type. Types of a newer version are skipped.
    bool take(const Section &section)
    {
        if (section.type == "PAGE")
            return takePage(section);
        const auto key = mKeys.keys.find(section.id);
        if (key == mKeys.keys.end())
            return false;
        if (section.type == "PICT")
            key->picture = section.data;
        else if (section.type == "ACTS")
            key->actions = actionsOf(section.data);
        else if (section.type == "VIDE")
            return takeVideo(*key, section.data);
        else if (section.type == "TEXT")
            return takeTexts(*key, section.data);
        return true;
    }

    bool takePage(const Section &section)
    {
        if (section.data.size() % KeyRecordField::RecordSize != 0)
            return false;
        mKeys.pages.insert({section.id.layout, section.id.page});
        for (int offset = 0; offset < section.data.size(); offset += KeyRecordField::RecordSize) {
            const QByteArray bytes = section.data.mid(offset, KeyRecordField::RecordSize);
            const auto record =
                decodeKeyRecord(reinterpret_cast<const quint8 *>(bytes.constData()), bytes.size());
            if (!record || record->layoutId != section.id.layout || record->pageId != section.id.page)
                return false;
            PanelKey key;
            key.record = *record;
            key.content = record->content;
            mKeys.keys.insert({record->layoutId, record->pageId, record->keyId}, key);
        }
        return true;
    }

    static bool takeVideo(PanelKey &key, const QByteArray &data)
    {
        const auto nameAndFile = parts(data);
        if (nameAndFile)
            key.video = nameAndFile->second;
        return nameAndFile.has_value();
    }

    /// Of the two only the content may be longer than on the record; the panel draws titles in GBK.
    static bool takeTexts(PanelKey &key, const QByteArray &data)
    {
        const auto texts = parts(data);
        if (!texts)
            return false;
        const QString content = QString::fromUtf8(texts->second);
        if (key.record.functionId == vorlinmodel::TEXT_OUTPUT_FID)
            setContent(key, TextCodec::toOutput(content));
        else if (key.record.functionId != vorlinmodel::KEY_COMBINATION_FID)
            setContent(key, texts->second);
        return true;
    }

    const QByteArray &mBytes;
    int mOffset = 0;
    Keys mKeys;
};

} // namespace

bool isOne(const QByteArray &bytes)
{
    return bytes.left(MagicSize) == QByteArray(Magic, MagicSize);
}

std::optional<Keys> read(const QByteArray &bytes)
{
    return Reader(bytes).run();
}

void takeOver(const Keys &keys, PanelState &state)
{
    for (auto key = state.keys.begin(); key != state.keys.end();) {
        const bool isReplaced = keys.pages.contains({key.key().layout, key.key().page});
        key = isReplaced ? state.keys.erase(key) : std::next(key);
    }
    for (auto key = keys.keys.cbegin(); key != keys.keys.cend(); ++key)
        state.keys.insert(key.key(), *key);
}

} // namespace ConfigFile
