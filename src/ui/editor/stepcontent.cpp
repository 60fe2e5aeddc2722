#include "stepcontent.h"

#include "functionlist.h"
#include "keystate.h"
#include "model/functioncatalogue.h"
#include "model/functionids.h"
#include "wire/actionlist.h"
#include "wire/keynames.h"
#include "wire/textcodec.h"

#include <QCoreApplication>

using vorlinmodel::MultiAction;

namespace {

struct StepText
{
    Q_DECLARE_TR_FUNCTIONS(StepText)
};

/// The wire has one byte for the function id.
bool carriesPayload(int fid)
{
    return ActionList::hasPayload(static_cast<qint8>(fid));
}

QString tooLong(StepContent::Kind kind, int bytes)
{
    const QString counting =
        kind == StepContent::Kind::Text
            ? StepText::tr("Every character takes 2 bytes, an emoji takes 4.")
            : StepText::tr("Letters without accents, digits and signs take 1 byte, other characters 2 to 4.");
    return StepText::tr("%1 bytes, but the panel takes %2.").arg(bytes).arg(ActionList::PayloadSize) +
           QLatin1Char(' ') + counting;
}

QString combinationFault(const QString &combination)
{
    QStringList unknown;
    for (const QString &key : combinationKeys(combination)) {
        if (KeyNames::code(key) == 0)
            unknown.append(key);
    }
    if (!unknown.isEmpty())
        return StepText::tr("The panel has no key of this name: %1").arg(unknown.join(QStringLiteral(", ")));
    // The panel takes the first four places, whether they are empty or not.
    const QString beyond = combination.section(QLatin1Char('#'), StepContent::MaxKeys);
    if (!combinationKeys(beyond).isEmpty())
        return StepText::tr("More keys than the %1 that the panel takes.").arg(StepContent::MaxKeys);
    return {};
}

} // namespace

StepContent::Kind StepContent::kindOf(int fid)
{
    switch (fid) {
    case vorlinmodel::OPEN_FILE_FID:
        return Kind::Path;
    case vorlinmodel::OPEN_WEB_FID:
        return Kind::Address;
    case vorlinmodel::TEXT_OUTPUT_FID:
        return Kind::Text;
    case vorlinmodel::KEY_COMBINATION_FID:
        return Kind::Combination;
    case vorlinmodel::TIME_DELAY_FID:
        return Kind::Delay;
    default:
        return Kind::None;
    }
}

MultiAction StepContent::newStep(int fid)
{
    MultiAction step;
    step.fid = static_cast<qint16>(fid);
    step.delay = kindOf(fid) == Kind::Delay ? quint16{NewDelay} : quint16{0};
    return step;
}

bool StepContent::canBeStep(int fid)
{
    return FunctionList::functions(FunctionList::Mode::MultiAction).contains(fid);
}

int StepContent::contentBytes(const MultiAction &step)
{
    const int longest = static_cast<int>(step.url.size()) * 4;
    switch (kindOf(step.fid)) {
    case Kind::Path:
    case Kind::Address:
        return static_cast<int>(TextCodec::toUtf8(step.url, longest).size());
    case Kind::Text:
        return static_cast<int>(TextCodec::toOutput(step.url).size());
    default:
        return -1;
    }
}

int StepContent::maxContentBytes()
{
    return ActionList::PayloadSize;
}

QString StepContent::fault(const MultiAction &step)
{
    const Kind kind = kindOf(step.fid);
    if (kind == Kind::Combination)
        return combinationFault(step.url);
    const int bytes = contentBytes(step);
    if (bytes > ActionList::PayloadSize)
        return tooLong(kind, bytes);
    if (bytes > 0 && step.url.contains(QChar()))
        return StepText::tr("A character with the number 0 would end the text before its end.");
    return {};
}

int StepContent::listBytes(const Steps &steps)
{
    int bytes = 0;
    for (const MultiAction &step : steps)
        bytes += carriesPayload(step.fid) ? ActionList::FullEntry : ActionList::EntryHead;
    return bytes;
}

int StepContent::maxListBytes()
{
    return ActionList::MaxEntriesSize;
}

QStringList StepContent::keyNames()
{
    QStringList names = KeyNames::all();
    names.removeAll(QStringLiteral("#"));
    return names;
}

QString StepContent::name(const EditorContext &context, int fid)
{
    const QString name = functionName(context, fid);
    return name.isEmpty() ? StepText::tr("Function %1").arg(fid) : name;
}

QString StepContent::oneLine(const MultiAction &step)
{
    switch (kindOf(step.fid)) {
    case Kind::Delay:
        return StepText::tr("%1 ms").arg(step.delay);
    case Kind::Combination:
        return combinationKeys(step.url).join(QStringLiteral(" + "));
    case Kind::None:
        return {};
    default:
        return QString(step.url).replace(QLatin1Char('\n'), QChar(0x21B5));
    }
}
