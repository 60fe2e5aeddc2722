#include "keystate.h"

#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "wire/keynames.h"

#include <QDataStream>
#include <QFile>
#include <algorithm>

using vorlinmodel::AttributeId;
using vorlinmodel::key_atttribute_t;
using vorlinmodel::key_id_t;

bool isVideo(const key_atttribute_t &record)
{
    return record.mFId == vorlinmodel::VIDEO_FID && !record.defaultImage.isEmpty() &&
           !record.defaultImage.startsWith(QLatin1Char(':'));
}

namespace {

constexpr qint64 LargestPicture = 32 * 1024 * 1024;
constexpr int MostSteps = 65535; // of a list that comes from foreign bytes

QByteArray ownPicture(const QString &path)
{
    QFile file(path);
    if (path.startsWith(QLatin1Char(':')) || file.size() > LargestPicture || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

QMap<key_id_t, QVector<vorlinmodel::MultiAction>> allSteps()
{
    QMap<key_id_t, QVector<vorlinmodel::MultiAction>> steps;
    QString error;
    const auto entries = vorlinmodel::multiActionStore().readAll(error);
    if (!entries)
        return steps;
    for (const vorlinmodel::MultiActionEntry &entry : *entries)
        steps.insert(entry.key, entry.actions);
    return steps;
}

/// What a panel holds for a key whose function was just set.
key_atttribute_t defaultsOf(int fid)
{
    key_atttribute_t record;
    record.mFId = fid;
    record.titleFontSize = 16;
    record.titleColour = QColor(0, 255, 0);
    return record;
}

bool samePicture(const KeyState &left, const KeyState &right)
{
    if (!left.picture.isEmpty() || !right.picture.isEmpty())
        return left.picture == right.picture;
    const key_atttribute_t &a = *left.record;
    const key_atttribute_t &b = *right.record;
    return a.nDisplayImageType == b.nDisplayImageType &&
           (a.nDisplayImageType == vorlinmodel::DefaultImage || a.customImage == b.customImage);
}

/// Each of these travels in one byte.
bool isSendable(const key_atttribute_t &record)
{
    const int values[] = {record.mFId, record.imageEffects, record.nDisplaymode, record.titleAlignment,
                          record.titleFontSize};
    return std::all_of(std::begin(values), std::end(values),
                       [](int value) { return value >= 0 && value <= 255; });
}

class Attributes
{
public:
    void addIf(bool differs, AttributeId id)
    {
        if (differs && !mIds.contains(id))
            mIds.append(id);
    }

    QVector<AttributeId> ids() const { return mIds; }

private:
    QVector<AttributeId> mIds;
};

void addValues(Attributes &ids, const key_atttribute_t &from, const key_atttribute_t &to)
{
    ids.addIf(from.imageEffects != to.imageEffects, AttributeId::ImageEffects);
    ids.addIf(from.nDisplaymode != to.nDisplaymode, AttributeId::DisplayMode);
    ids.addIf(from.titleAlignment != to.titleAlignment, AttributeId::TitleAlignment);
    ids.addIf(from.titleFontSize != to.titleFontSize, AttributeId::TitleFontSize);
    ids.addIf(from.titleColour.rgb() != to.titleColour.rgb(), AttributeId::TitleColour);
    ids.addIf(from.strTitle != to.strTitle, AttributeId::Title);
}

QString textOf(const KeyState &state)
{
    return state.record ? state.record->strAppOrUrl : QString();
}

/// A panel keeps the content of a key whose function changes, although it means something else then; the id
/// of addresses empties it for functions that have none of their own.
void addContent(Attributes &ids, const KeyState &from, const KeyState &to)
{
    const bool readAnew = from.fid() != to.fid() && !(textOf(from).isEmpty() && textOf(to).isEmpty());
    ids.addIf(readAnew || textOf(from) != textOf(to), textAttribute(to.fid()));
    ids.addIf(from.steps != to.steps, AttributeId::MultiActions);
}

bool hasPicture(const key_atttribute_t &record)
{
    if (record.nDisplayImageType != vorlinmodel::DefaultImage)
        return !record.customImage.isEmpty();
    return !record.defaultImage.isEmpty() && !isVideo(record);
}

} // namespace

bool KeyState::hasOwnPicture() const
{
    return record && record->nDisplayImageType != vorlinmodel::DefaultImage &&
           !record->customImage.isEmpty() && !record->customImage.startsWith(QLatin1Char(':'));
}

KeyState captureKeyState(const vorlinmodel::IFunctionManager &store, const key_id_t &key)
{
    return captureKeyStates(store, {key}).value(key);
}

QMap<key_id_t, KeyState> captureKeyStates(const vorlinmodel::IFunctionManager &store,
                                          const QVector<key_id_t> &keys)
{
    QMap<key_id_t, KeyState> states;
    std::optional<QMap<key_id_t, QVector<vorlinmodel::MultiAction>>> steps;
    for (const key_id_t &key : keys) {
        KeyState state;
        state.record = store.getKeyAttribute(key);
        if (state.hasOwnPicture())
            state.picture = ownPicture(state.record->customImage);
        if (state.fid() == vorlinmodel::MULTIPLE_ACTIONS_FID) {
            if (!steps)
                steps = allSteps();
            state.steps = steps->value(key);
        }
        if (state.fid() == vorlinmodel::CHILDREN_PAGE_FID)
            state.home = vorlindesk::SystemSettings::homeLayoutEntry(key.kid);
        states.insert(key, state);
    }
    return states;
}

bool sameKey(const KeyState &left, const KeyState &right)
{
    if (!left.record || !right.record)
        return !left.record && !right.record;
    key_atttribute_t a = *left.record;
    const key_atttribute_t &b = *right.record;
    a.customImage = b.customImage;
    a.titleColour = b.titleColour;
    return samePicture(left, right) && a == b && left.record->titleColour.rgb() == b.titleColour.rgb() &&
           left.steps == right.steps && left.home.layoutId == right.home.layoutId &&
           left.home.pageId == right.home.pageId && left.home.sum == right.home.sum;
}

bool sameFunction(const KeyState &left, const KeyState &right)
{
    const auto comparable = [](const KeyState &state) {
        key_atttribute_t record = state.record.value_or(key_atttribute_t{});
        record.nDisplayImageType = 0;
        record.defaultImage.clear();
        record.customImage.clear();
        record.titleColour = QColor(record.titleColour.rgb()); // not in another colour model
        if (record.mFId == vorlinmodel::KEY_COMBINATION_FID)
            record.strAppOrUrl = combinationKeys(record.strAppOrUrl).join(QLatin1Char('#'));
        return record;
    };
    return comparable(left) == comparable(right) && left.steps == right.steps;
}

QStringList combinationKeys(const QString &combination)
{
    QStringList keys = combination.split(QLatin1Char('#'), Qt::SkipEmptyParts);
    keys.removeAll(KeyNames::name(0));
    return keys;
}

QVector<AttributeId> attributesToSend(const KeyState &from, const KeyState &to)
{
    if (!to.record)
        return from.record ? QVector<AttributeId>{AttributeId::ClearKey} : QVector<AttributeId>{};
    Attributes ids;
    const bool newFunction = from.fid() != to.fid();
    ids.addIf(newFunction, AttributeId::FunctionId);
    ids.addIf((newFunction || !samePicture(from, to)) && hasPicture(*to.record), AttributeId::Picture);
    // A panel whose key gets another function keeps its other values: what differs has to follow.
    const key_atttribute_t before = from.record.value_or(defaultsOf(to.fid()));
    addValues(ids, before, *to.record);
    ids.addIf(isVideo(*to.record) && (newFunction || before.defaultImage != to.record->defaultImage),
              AttributeId::Video);
    addContent(ids, from, to);
    return ids.ids();
}

QVector<AttributeId> attributesToRestore(const KeyState &from, const KeyState &to)
{
    if (!from.record || !to.record)
        return attributesToSend(from, to);
    const bool losesVideo =
        isVideo(*from.record) && to.fid() == vorlinmodel::VIDEO_FID && !isVideo(*to.record);
    const bool losesPicture = hasPicture(*from.record) && !hasPicture(*to.record) && !isVideo(*to.record);
    return losesVideo || losesPicture ? allAttributes(to) : attributesToSend(from, to);
}

QVector<AttributeId> allAttributes(const KeyState &to)
{
    return QVector<AttributeId>{AttributeId::ClearKey} + attributesToSend({}, to);
}

std::optional<AttributeId> contentAttribute(int fid)
{
    switch (fid) {
    case vorlinmodel::OPEN_FILE_FID:
    case vorlinmodel::OPEN_WEB_FID:
        return AttributeId::AppOrUrl;
    case vorlinmodel::MULTIPLE_ACTIONS_FID:
        return AttributeId::MultiActions;
    case vorlinmodel::TEXT_OUTPUT_FID:
        return AttributeId::TextOutput;
    case vorlinmodel::KEY_COMBINATION_FID:
        return AttributeId::KeyCombination;
    default:
        return std::nullopt;
    }
}

AttributeId textAttribute(int fid)
{
    const AttributeId own = contentAttribute(fid).value_or(AttributeId::AppOrUrl);
    return own == AttributeId::MultiActions ? AttributeId::AppOrUrl : own;
}

QDataStream &operator<<(QDataStream &stream, const KeyState &state)
{
    stream << bool(state.record);
    if (state.record) {
        const key_atttribute_t &record = *state.record;
        stream << record.mFId << record.nDisplayImageType << record.defaultImage << record.customImage
               << record.imageEffects << record.nDisplaymode << record.strTitle << record.titleAlignment
               << record.titleFontSize << record.titleColour.rgb() << record.strAppOrUrl;
    }
    stream << state.picture << qint32(state.steps.size());
    for (const vorlinmodel::MultiAction &step : state.steps)
        stream << step.fid << step.delay << step.url;
    return stream << qint32(state.home.layoutId) << qint32(state.home.pageId) << qint32(state.home.sum);
}

QDataStream &operator>>(QDataStream &stream, KeyState &state)
{
    state = {};
    bool hasRecord = false;
    stream >> hasRecord;
    if (hasRecord) {
        key_atttribute_t record;
        QRgb colour = 0;
        stream >> record.mFId >> record.nDisplayImageType >> record.defaultImage >> record.customImage >>
            record.imageEffects >> record.nDisplaymode >> record.strTitle >> record.titleAlignment >>
            record.titleFontSize >> colour >> record.strAppOrUrl;
        record.titleColour = QColor(colour);
        if (!isSendable(record))
            stream.setStatus(QDataStream::ReadCorruptData);
        state.record = record;
    }
    qint32 steps = 0;
    stream >> state.picture >> steps;
    if (steps < 0 || steps > MostSteps)
        stream.setStatus(QDataStream::ReadCorruptData);
    for (int i = 0; i < steps && stream.status() == QDataStream::Ok; ++i) {
        vorlinmodel::MultiAction step;
        stream >> step.fid >> step.delay >> step.url;
        state.steps.append(step);
    }
    qint32 layoutId = -1;
    qint32 pageId = -1;
    qint32 sum = -1;
    stream >> layoutId >> pageId >> sum;
    state.home.layoutId = layoutId;
    state.home.pageId = pageId;
    state.home.sum = sum;
    return stream;
}
