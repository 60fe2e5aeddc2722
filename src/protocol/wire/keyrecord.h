/// The 272-byte record in which the panel reports one key, and the page of records that carries them.
#pragma once

#include <QByteArray>
#include <QVector>
#include <optional>

namespace KeyRecordField {
constexpr int LayoutId = 0;        // u8
constexpr int PageId = 1;          // u8
constexpr int KeyId = 2;           // u8
constexpr int FunctionId = 5;      // u8; bytes 3 and 4 are not read by the host
constexpr int ImageEffects = 6;    // u8
constexpr int DisplayMode = 7;     // u8
constexpr int TitleAlignment = 8;  // u8; byte 9 is not read by the host
constexpr int TitleFontSize = 10;  // u8
constexpr int Red = 11;            // u8
constexpr int Green = 12;          // u8
constexpr int Blue = 13;           // u8
constexpr int TitleLength = 14;    // u8, bytes of the title; clamped to TextArea
constexpr int Title = 15;          // 128 bytes, GBK
constexpr int ContentLength = 143; // u8, bytes of the content; clamped to TextArea
constexpr int Content = 144;       // 128 bytes
constexpr int TextArea = 128;
constexpr int RecordSize = 272;
} // namespace KeyRecordField

struct KeyRecord
{
    quint8 layoutId = 0;
    quint8 pageId = 0;
    quint8 keyId = 0;
    quint8 functionId = 0;
    quint8 imageEffects = 0;
    quint8 displayMode = 0;
    quint8 titleAlignment = 0;
    quint8 titleFontSize = 0;
    quint8 red = 0;
    quint8 green = 0;
    quint8 blue = 0;
    QByteArray title; ///< GBK, up to the first NUL, at most 128 bytes
    QByteArray
        content; ///< raw, as many bytes as the record counts, at most 128; its meaning depends on functionId
    bool operator==(const KeyRecord &) const = default;
};

/// @return the record at the start of @p bytes, or nothing when it is cut short.
std::optional<KeyRecord> decodeKeyRecord(const quint8 *bytes, int size);

/// The 272 bytes of @p record; title and content are cut to their areas, the rest is zero.
QByteArray encodeKeyRecord(const KeyRecord &record);

/// Payload of a configuration reply: layout id, page id, then n records of 272 bytes; trailing bytes that do
/// not fill a record are ignored.
struct PagePayload
{
    static constexpr int HeaderSize = 2;
    static constexpr int MinimumSize = HeaderSize + KeyRecordField::RecordSize; // 274: with one record

    quint8 layoutId = 0;
    quint8 pageId = 0;
    QVector<KeyRecord> records;
};

/// @return nothing when the payload is shorter than PagePayload::MinimumSize (a payload of exactly 2 bytes,
/// an empty page, is for the caller to tell apart).
std::optional<PagePayload> decodePagePayload(const quint8 *bytes, int size);
QByteArray encodePagePayload(const PagePayload &page);

/// Content of a key combination: the first four content bytes as names joined with "#"; missing bytes read as
/// 0.
QString keyCombinationText(const QByteArray &codes);

/// The four usage codes of a combination text ("Left Ctrl#C"); an empty text counts as "####", parts beyond
/// the fourth are ignored, unknown names give 0.
QByteArray keyCombinationCodes(const QString &combination);
