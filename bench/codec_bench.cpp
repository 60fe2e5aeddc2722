// What the codec costs: the bytes of a report, a record, a page, an action list, and the firmware's checksum.
#include "wire/actionlist.h"
#include "wire/crc16.h"
#include "wire/keyrecord.h"
#include "wire/reportframe.h"
#include "wire/textcodec.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int KeysOnAPage = 15;

const quint8 *bytesOf(const QByteArray &bytes)
{
    return reinterpret_cast<const quint8 *>(bytes.constData());
}

KeyRecord exampleRecord()
{
    return {.layoutId = 1,
            .pageId = 2,
            .keyId = 3,
            .functionId = 3,
            .imageEffects = 1,
            .displayMode = 0,
            .titleAlignment = 2,
            .titleFontSize = 16,
            .red = 0,
            .green = 255,
            .blue = 0,
            .title = TextCodec::toGbk(QStringLiteral("日程表 Calendar")),
            .content = QByteArrayLiteral("https://calendar.example/week?view=full")};
}

QVector<ActionList::Action> exampleActions()
{
    return {{2, 0, QStringLiteral("/usr/share/docs/手册.pdf")},      {100, 500, {}},
            {3, 0, QStringLiteral("https://calendar.example/week")}, {15, 0, QStringLiteral("Kind regards")},
            {16, 0, QStringLiteral("Left Ctrl#Left Shift#S#")},      {5, 0, {}}};
}

template <typename Work>
void measure(benchmark::State &state, Work work)
{
    for (auto _ : state) // NOLINT(clang-analyzer-deadcode.DeadStores): how the library counts rounds
        benchmark::DoNotOptimize(work());
}

void countBytes(benchmark::State &state, int bytesPerRound)
{
    state.SetBytesProcessed(state.iterations() * bytesPerRound);
}

void encodeReport(benchmark::State &state)
{
    const QByteArray payload(ReportFrame::Out::MaxPayload, 'p');
    ReportFrame::Report report{};
    measure(state, [&] {
        benchmark::DoNotOptimize(
            ReportFrame::encode(ReportFrame::Block::More, bytesOf(payload), payload.size(), report));
        return report;
    });
    countBytes(state, ReportFrame::Size);
}
BENCHMARK(encodeReport);

void encodeRecord(benchmark::State &state)
{
    const KeyRecord record = exampleRecord();
    measure(state, [&] { return encodeKeyRecord(record); });
    countBytes(state, KeyRecordField::RecordSize);
}
BENCHMARK(encodeRecord);

void decodeRecord(benchmark::State &state)
{
    const QByteArray bytes = encodeKeyRecord(exampleRecord());
    measure(state, [&] { return decodeKeyRecord(bytesOf(bytes), bytes.size()); });
    countBytes(state, bytes.size());
}
BENCHMARK(decodeRecord);

void decodePage(benchmark::State &state)
{
    const QVector<KeyRecord> records(KeysOnAPage, exampleRecord());
    const QByteArray bytes = encodePagePayload({.layoutId = 1, .pageId = 2, .records = records});
    measure(state, [&] { return decodePagePayload(bytesOf(bytes), bytes.size()); });
    countBytes(state, bytes.size());
}
BENCHMARK(decodePage);

void encodeActions(benchmark::State &state)
{
    const QVector<ActionList::Action> actions = exampleActions();
    measure(state, [&] { return ActionList::encode(actions); });
    countBytes(state, ActionList::encode(actions).value.size());
}
BENCHMARK(encodeActions);

void decodeActions(benchmark::State &state)
{
    const QByteArray value = ActionList::encode(exampleActions()).value;
    measure(state, [&] { return ActionList::decode(value); });
    countBytes(state, value.size());
}
BENCHMARK(decodeActions);

void encodeTitle(benchmark::State &state)
{
    const QString title = QStringLiteral("日程表 Calendar");
    measure(state, [&] { return TextCodec::toGbk(title); });
    countBytes(state, TextCodec::toGbk(title).size());
}
BENCHMARK(encodeTitle);

void checksumOfAMebibyte(benchmark::State &state)
{
    const QByteArray firmware(1024 * 1024, 'f');
    measure(state, [&] { return crc16(firmware); });
    countBytes(state, firmware.size());
}
BENCHMARK(checksumOfAMebibyte);

} // namespace

BENCHMARK_MAIN();
