#include "layoutrules.h"

#include "attributerules.h"
#include "model/keyid.h"
#include "panelstate.h"
#include "wire/customlayout.h"
#include "wire/homelayout.h"

#include <QtEndian>
#include <algorithm>

namespace LayoutRules {

namespace Field = CustomLayoutRecord;

namespace {

QString titleFault(const QByteArray &body)
{
    const int length = static_cast<quint8>(body.at(Field::TitleLength));
    if (length > Field::TitleArea)
        return QStringLiteral("a layout title of %1 bytes").arg(length);
    const QByteArray area = body.mid(Field::Title, Field::TitleArea);
    if (!AttributeRules::isGbk(area.left(length)))
        return QStringLiteral("a layout title that is not GBK");
    const QByteArray rest = area.mid(length);
    return std::all_of(rest.cbegin(), rest.cend(), [](char byte) { return byte == 0; })
               ? QString()
               : QStringLiteral("bytes behind the layout title are not zero");
}

bool isPhysicalKey(int key)
{
    return key >= vorlinmodel::FirstKeyId && key <= vorlinmodel::LastKeyId;
}

/// The physical keys of a logical one as bits; 0 when its corners make no rectangle.
quint32 keyMask(const Field::Key &key)
{
    if (!isPhysicalKey(key.first) || !isPhysicalKey(key.last))
        return 0;
    quint32 mask = 0;
    for (int row = (key.first - 1) / PanelColumns; row <= (key.last - 1) / PanelColumns; ++row)
        for (int column = (key.first - 1) % PanelColumns; column <= (key.last - 1) % PanelColumns; ++column)
            mask |= 1u << (row * PanelColumns + column);
    return mask;
}

QString keysFault(const Field::Record &record, const QByteArray &triples)
{
    constexpr int tripleSize = 3;
    quint32 taken = 0;
    for (int i = 0; i < record.keys.size(); ++i) {
        if (static_cast<quint8>(triples.at(i * tripleSize)) != i + 1)
            return QStringLiteral("logical key %1 has another number").arg(i + 1);
        const quint32 mask = keyMask(record.keys.at(i));
        if (mask == 0)
            return QStringLiteral("logical key %1 from %2 to %3")
                .arg(i + 1)
                .arg(record.keys.at(i).first)
                .arg(record.keys.at(i).last);
        if ((taken & mask) != 0)
            return QStringLiteral("logical key %1 covers another").arg(i + 1);
        taken |= mask;
    }
    return {};
}

bool isPlace(const HomeLayout::Entry &entry)
{
    const bool layout = entry.layoutId == -1 || entry.layoutId >= 1;
    const bool page = entry.pageId == -1 || (entry.pageId >= 1 && entry.pageId <= vorlinmodel::MaxPage);
    return isPhysicalKey(entry.keyId) && layout && page;
}

} // namespace

QString customLayoutFault(const QByteArray &body)
{
    constexpr int tripleSize = 3;
    if (body.size() < Field::Triples)
        return QStringLiteral("a custom layout cut short");
    const int count = qFromLittleEndian<quint16>(body.constData() + Field::KeyCount);
    if (body.size() != Field::Triples + count * tripleSize)
        return QStringLiteral("key count %1, but %2 bytes of keys")
            .arg(count)
            .arg(body.size() - Field::Triples);
    if (body.at(Field::LayoutNumber) == 0)
        return QStringLiteral("layout number 0");
    const QString fault = titleFault(body);
    return fault.isEmpty() ? keysFault(*Field::decode(body), body.mid(Field::Triples)) : fault;
}

QString homeLayoutFault(const QByteArray &body)
{
    constexpr int headerSize = 2;
    constexpr int entrySize = 4;
    if (body.size() < headerSize)
        return QStringLiteral("a home layout cut short");
    const int count = static_cast<quint8>(body.at(1));
    if (body.size() != headerSize + count * entrySize)
        return QStringLiteral("entry count %1, but %2 bytes of entries")
            .arg(count)
            .arg(body.size() - headerSize);
    const auto record = HomeLayout::decode(body);
    for (const HomeLayout::Entry &entry : record->entries)
        if (!isPlace(entry))
            return QStringLiteral("home layout entry %1/%2/%3")
                .arg(entry.layoutId)
                .arg(entry.pageId)
                .arg(entry.keyId);
    return {};
}

} // namespace LayoutRules
