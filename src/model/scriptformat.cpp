#include "scriptformat.h"

#include "backuptext.h"
#include "crc32.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

namespace vorlinmodel {

namespace Header = ScriptHeaderField;
namespace Section = ScriptSectionField;

namespace {

constexpr quint32 fourCharacters(const char (&text)[5])
{
    quint32 value = 0;
    for (int i = 3; i >= 0; --i)
        value = value << 8 | static_cast<quint8>(text[i]);
    return value;
}

// Numbers of a type are never used again for something else: older programs skip what they do not know.
enum class SectionType : quint32 {
    Page = fourCharacters("PAGE"),        // n x 272 bytes, key records
    Texts = fourCharacters("TEXT"),       // u32 byte count of the title, title, content; UTF-8
    Picture = fourCharacters("PICT"),     // PNG
    PictureFile = fourCharacters("FILE"), // the user's picture file
    Resource = fourCharacters("RSRC"),    // path, UTF-8
    Video = fourCharacters("VIDE"),       // u32 byte count of the name, file name in UTF-8, file
    Actions = fourCharacters("ACTS"),     // JSON array of actions, UTF-8
};

constexpr quint8 CustomImageFlag = 1; // of a picture
constexpr int CountSize = 4;

template <typename Integer>
Integer readInteger(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Integer>(bytes.constData() + offset);
}

template <typename Integer>
void writeInteger(QByteArray &bytes, int offset, Integer value)
{
    qToLittleEndian(value, bytes.data() + offset);
}

quint8 byteAt(const QByteArray &bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

// u32 byte count of @p first, then both.
QByteArray joined(const QByteArray &first, const QByteArray &second)
{
    QByteArray count(CountSize, '\0');
    writeInteger(count, 0, static_cast<quint32>(first.size()));
    return count + first + second;
}

std::optional<std::pair<QByteArray, QByteArray>> split(const QByteArray &data)
{
    if (data.size() < CountSize)
        return std::nullopt;
    const qint64 count = readInteger<quint32>(data, 0);
    if (count > data.size() - CountSize)
        return std::nullopt;
    const int length = static_cast<int>(count);
    return std::pair{data.mid(CountSize, length), data.mid(CountSize + length)};
}

QByteArray encodeActions(const QVector<MultiAction> &actions)
{
    QJsonArray array;
    for (const MultiAction &action : actions)
        array.append(MultiActionStore::toJson(action));
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

std::optional<QVector<MultiAction>> decodeActions(const QByteArray &data)
{
    const QJsonDocument document = QJsonDocument::fromJson(data);
    if (!document.isArray())
        return std::nullopt;
    QVector<MultiAction> actions;
    for (const QJsonValue &element : document.array()) {
        QString error;
        actions.append(MultiActionStore::actionFromJson(element.toObject(), error));
        if (!error.isEmpty())
            return std::nullopt;
    }
    return actions;
}

class Writer
{
public:
    explicit Writer(const BackupWatch &watch)
        : mWatch(watch)
    {}

    void page(const PagePayload &page)
    {
        QByteArray records;
        for (const KeyRecord &record : page.records)
            records += encodeKeyRecord(record);
        section(SectionType::Page, {page.layoutId, page.pageId, 0}, records);
    }

    void key(const key_id_t &id, const ScriptKey &key)
    {
        if (key.texts)
            section(SectionType::Texts, id, joined(key.texts->title.toUtf8(), key.texts->content.toUtf8()));
        if (!key.picture.isEmpty() || key.customImage)
            section(SectionType::Picture, id, key.picture, key.customImage ? CustomImageFlag : quint8{0});
        if (!key.pictureFile.isEmpty())
            section(SectionType::PictureFile, id, key.pictureFile);
        if (!key.resource.isEmpty())
            section(SectionType::Resource, id, key.resource.toUtf8());
        if (!key.video.isEmpty())
            section(SectionType::Video, id, joined(key.videoName.toUtf8(), key.video));
        if (!key.actions.isEmpty())
            section(SectionType::Actions, id, encodeActions(key.actions));
    }

    QByteArray finished(int layoutId, int pageId) const
    {
        QByteArray header(Header::Size, '\0');
        header.replace(0, Header::MagicSize, Header::Magic, Header::MagicSize);
        writeInteger(header, Header::Version, Script::CurrentVersion);
        writeInteger(header, Header::HeaderSize, quint16{Header::Size});
        writeInteger(header, Header::LayoutId, static_cast<quint8>(layoutId));
        writeInteger(header, Header::PageId, static_cast<quint8>(pageId));
        writeInteger(header, Header::SectionCount, mCount);
        writeInteger(header, Header::Checksum, crc32(header.left(Header::Checksum)));
        return header + mSections;
    }

private:
    void section(SectionType type, const key_id_t &id, const QByteArray &data, quint8 flags = 0)
    {
        QByteArray head(Section::Size, '\0');
        writeInteger(head, Section::Type, static_cast<quint32>(type));
        writeInteger(head, Section::LayoutId, static_cast<quint8>(id.lid));
        writeInteger(head, Section::PageId, static_cast<quint8>(id.pageid));
        writeInteger(head, Section::KeyId, static_cast<quint8>(id.kid));
        writeInteger(head, Section::Flags, flags);
        writeInteger(head, Section::Length, static_cast<quint32>(data.size()));
        writeInteger(head, Section::DataChecksum, crc32(data, mWatch));
        writeInteger(head, Section::HeadChecksum, crc32(head.left(Section::HeadChecksum)));
        mSections += head + data;
        ++mCount;
    }

    const BackupWatch &mWatch;
    QByteArray mSections;
    quint32 mCount = 0;
};

// Bytes of the header, 0 when it is not ours or damaged.
int checkedHeaderSize(const QByteArray &bytes)
{
    if (bytes.size() < Header::Size || !bytes.startsWith(Header::Magic))
        return 0;
    const int size = readInteger<quint16>(bytes, Header::HeaderSize);
    if (size < Header::Size || size > bytes.size())
        return 0;
    const int checksum = size - Header::ChecksumSize;
    return readInteger<quint32>(bytes, checksum) == crc32(bytes.left(checksum)) ? size : 0;
}

class Parser
{
public:
    Parser(const QByteArray &bytes, const BackupWatch &watch)
        : mBytes(bytes)
        , mWatch(watch)
    {}

    Script run()
    {
        if (!readHeader()) {
            mScript.damaged.append(BackupText::part(BackupText::Part::Header));
            return mScript;
        }
        for (quint32 index = 0; index < mSectionCount; ++index) {
            if (!readSection()) { // where the next one begins is not known
                mScript.damaged.append(
                    BackupText::part(BackupText::Part::Rest).arg(index + 1).arg(mSectionCount));
                return mScript;
            }
        }
        if (mOffset != mBytes.size())
            mScript.damaged.append(BackupText::part(BackupText::Part::Behind));
        return mScript;
    }

private:
    struct Head
    {
        quint32 type;
        key_id_t id;
        quint8 flags;
    };

    bool readHeader()
    {
        mOffset = checkedHeaderSize(mBytes);
        if (mOffset == 0)
            return false;
        mScript.version = readInteger<quint16>(mBytes, Header::Version);
        mScript.layoutId = byteAt(mBytes, Header::LayoutId);
        mScript.pageId = byteAt(mBytes, Header::PageId);
        mSectionCount = readInteger<quint32>(mBytes, Header::SectionCount);
        return true;
    }

    // @return false when the head is damaged or the file ends within the section.
    bool readSection()
    {
        const QByteArray head = mBytes.mid(mOffset, Section::Size);
        if (head.size() < Section::Size)
            return false;
        if (readInteger<quint32>(head, Section::HeadChecksum) != crc32(head.left(Section::HeadChecksum)))
            return false;
        const qint64 length = readInteger<quint32>(head, Section::Length);
        if (length > mBytes.size() - mOffset - Section::Size)
            return false;
        const QByteArray data = mBytes.mid(mOffset + Section::Size, static_cast<int>(length));
        mOffset += Section::Size + data.size();
        const Head fields{
            readInteger<quint32>(head, Section::Type),
            {byteAt(head, Section::LayoutId), byteAt(head, Section::PageId), byteAt(head, Section::KeyId)},
            byteAt(head, Section::Flags)};
        if (readInteger<quint32>(head, Section::DataChecksum) != crc32(data, mWatch) || !take(fields, data))
            mScript.damaged.append(nameOf(fields));
        return true;
    }

    bool take(const Head &head, const QByteArray &data)
    {
        switch (static_cast<SectionType>(head.type)) {
        case SectionType::Page:
            return takePage(head, data);
        case SectionType::Texts:
            return takeTexts(key(head), data);
        case SectionType::Picture:
            key(head).picture = data;
            key(head).customImage = (head.flags & CustomImageFlag) != 0;
            return true;
        case SectionType::PictureFile:
            key(head).pictureFile = data;
            return true;
        case SectionType::Resource:
            key(head).resource = QString::fromUtf8(data);
            return true;
        case SectionType::Video:
            return takeVideo(key(head), data);
        case SectionType::Actions:
            return takeActions(key(head), data);
        }
        ++mScript.skippedSections; // from a newer version
        return true;
    }

    bool takePage(const Head &head, const QByteArray &data)
    {
        if (data.size() % KeyRecordField::RecordSize != 0)
            return false;
        PagePayload page{static_cast<quint8>(head.id.lid), static_cast<quint8>(head.id.pageid), {}};
        for (int offset = 0; offset < data.size(); offset += KeyRecordField::RecordSize) {
            const QByteArray bytes = data.mid(offset, KeyRecordField::RecordSize);
            const auto record =
                decodeKeyRecord(reinterpret_cast<const quint8 *>(bytes.constData()), bytes.size());
            if (!record || record->layoutId != page.layoutId || record->pageId != page.pageId)
                return false;
            page.records.append(*record);
        }
        mScript.pages.append(page);
        return true;
    }

    static bool takeTexts(ScriptKey &key, const QByteArray &data)
    {
        const auto parts = split(data);
        if (parts)
            key.texts = ScriptTexts{QString::fromUtf8(parts->first), QString::fromUtf8(parts->second)};
        return parts.has_value();
    }

    static bool takeVideo(ScriptKey &key, const QByteArray &data)
    {
        const auto parts = split(data);
        if (parts) {
            key.videoName = QString::fromUtf8(parts->first);
            key.video = parts->second;
        }
        return parts.has_value();
    }

    static bool takeActions(ScriptKey &key, const QByteArray &data)
    {
        const auto actions = decodeActions(data);
        if (actions)
            key.actions = *actions;
        return actions.has_value();
    }

    ScriptKey &key(const Head &head) { return mScript.keys[head.id]; }

    static QString nameOf(const Head &head)
    {
        const QString name = BackupText::part(partOf(static_cast<SectionType>(head.type)));
        const QString ofPage = name.arg(head.id.lid).arg(head.id.pageid);
        const bool isOfKey = static_cast<SectionType>(head.type) != SectionType::Page;
        return isOfKey ? ofPage.arg(head.id.kid) : ofPage;
    }

    static BackupText::Part partOf(SectionType type)
    {
        switch (type) {
        case SectionType::Page:
            return BackupText::Part::Page;
        case SectionType::Texts:
            return BackupText::Part::Texts;
        case SectionType::Picture:
            return BackupText::Part::Picture;
        case SectionType::PictureFile:
            return BackupText::Part::PictureFile;
        case SectionType::Resource:
            return BackupText::Part::Resource;
        case SectionType::Video:
            return BackupText::Part::Video;
        case SectionType::Actions:
            return BackupText::Part::Actions;
        }
        return BackupText::Part::Unknown;
    }

    const QByteArray &mBytes;
    const BackupWatch &mWatch;
    Script mScript;
    quint32 mSectionCount = 0;
    int mOffset = 0;
};

} // namespace

QByteArray encodeScript(const Script &script, const BackupWatch &watch)
{
    Writer writer(watch);
    for (const PagePayload &page : script.pages) {
        writer.page(page);
        // Page by page, as the panel takes them over.
        const key_id_t first{page.layoutId, page.pageId, 0};
        for (auto it = script.keys.lowerBound(first); it != script.keys.end(); ++it) {
            if (it.key().lid != first.lid || it.key().pageid != first.pageid)
                break;
            writer.key(it.key(), it.value());
        }
    }
    const bool empty = script.pages.isEmpty();
    return writer.finished(empty ? 0 : script.pages.first().layoutId,
                           empty ? 0 : script.pages.first().pageId);
}

std::optional<key_id_t> scriptPosition(const QByteArray &bytes)
{
    if (checkedHeaderSize(bytes) == 0)
        return std::nullopt;
    return key_id_t{byteAt(bytes, Header::LayoutId), byteAt(bytes, Header::PageId), 0};
}

Script parseScript(const QByteArray &bytes, const BackupWatch &watch)
{
    return Parser(bytes, watch).run();
}

} // namespace vorlinmodel
