// Every decoder against foreign bytes: random, cut short, and valid ones with bytes changed. The bytes lie in
// a heap block of exactly their size, so that an overread is seen by the address sanitizer; the checks here
// see the rest.
#include "bytesofhex.h"
#include "wire/actionlist.h"
#include "wire/applicationmessage.h"
#include "wire/attributevalue.h"
#include "wire/customlayout.h"
#include "wire/homelayout.h"
#include "wire/keyrecord.h"
#include "wire/reportframe.h"
#include "wire/textcodec.h"

#include <QtTest>
#include <vector>

namespace {

constexpr quint32 Seed = 20261121;
constexpr int Rounds = 4000;

/// A copy of the bytes without the NUL that QByteArray keeps behind its own.
using Exact = std::vector<quint8>;

QByteArray view(const Exact &bytes)
{
    return QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()), int(bytes.size()));
}

void decodeFrames(const Exact &bytes)
{
    const int size = int(bytes.size());
    if (const auto message = ApplicationMessage::view(bytes.data(), size)) {
        QVERIFY(message->bodySize <= qMax(0, size - 5));
        QByteArray(reinterpret_cast<const char *>(message->body), message->bodySize).detach(); // reads all
    }
    ReportFrame::Report report{};
    std::copy_n(bytes.begin(), qMin(size, int(ReportFrame::Size)), report.begin());
    QVERIFY(ReportFrame::decodeIncoming(report).length <= 58);
}

void decodePage(const Exact &bytes)
{
    const int size = int(bytes.size());
    const auto page = decodePagePayload(bytes.data(), size);
    QCOMPARE(page.has_value(), size >= 274);
    if (!page)
        return;
    QCOMPARE(int(page->records.size()), (size - 2) / 272);
    for (const KeyRecord &record : page->records) {
        QVERIFY(record.title.size() <= 128 && record.content.size() <= 128);
        TextCodec::fromGbk(record.title);
        keyCombinationText(record.content);
    }
}

void decodeRecords(const Exact &exact)
{
    const QByteArray bytes = view(exact);
    const auto actions = ActionList::decode(bytes);
    QVERIFY(3 * actions.size() <= bytes.size() + 3);
    for (const ActionList::Action &action : actions)
        QVERIFY(action.text.size() <= 128);
    if (const auto home = HomeLayout::decode(bytes))
        QVERIFY(2 + 4 * home->entries.size() <= bytes.size());
    if (const auto custom = CustomLayoutRecord::decode(bytes))
        QVERIFY(132 + 3 * custom->keys.size() <= bytes.size());
}

void decodeTexts(const Exact &exact)
{
    const QByteArray bytes = view(exact);
    QVERIFY(TextCodec::fromGbk(bytes).size() <= bytes.size());
    QVERIFY(TextCodec::fromUtf8(bytes).size() <= bytes.size());
    QVERIFY(TextCodec::fromOutput(bytes).size() <= bytes.size() / 2);
    QCOMPARE(AttributeValue::fileOf(bytes).size(), qMax(0, bytes.size() - 4));
}

void decodeAll(const QByteArray &bytes)
{
    const Exact exact(bytes.begin(), bytes.end());
    for (const auto decode : {decodeFrames, decodePage, decodeRecords, decodeTexts}) {
        decode(exact);
        if (QTest::currentTestFailed()) {
            qWarning("failed on %d bytes: %s", bytes.size(), bytes.left(400).toHex().constData());
            return;
        }
    }
}

QByteArray randomBytes(QRandomGenerator &random, int size)
{
    QByteArray bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.bounded(256)); });
    return bytes;
}

/// A few bytes changed, some of them to the values at which lengths break.
QByteArray mutated(QRandomGenerator &random, QByteArray bytes)
{
    constexpr std::array<int, 6> Edges{0x00, 0x01, 0x7F, 0x80, 0x81, 0xFF};
    for (int changes = random.bounded(1, 6); changes > 0 && !bytes.isEmpty(); --changes) {
        const int value = random.bounded(2) == 0 ? Edges.at(size_t(random.bounded(int(Edges.size()))))
                                                 : random.bounded(256);
        bytes[random.bounded(bytes.size())] = char(value);
    }
    return bytes.left(random.bounded(4) == 0 ? random.bounded(bytes.size() + 1) : bytes.size());
}

} // namespace

class WireRobustness : public QObject
{
    Q_OBJECT

private slots:
    void randomBytesOfEverySize()
    {
        QRandomGenerator random(Seed);
        for (int size = 0; size < 600 && !QTest::currentTestFailed(); ++size)
            decodeAll(randomBytes(random, size));
    }

    void validBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        KeyRecord record{.functionId = 15, .title = hex("D6 D0"), .content = hex("41 00")};
        QTest::newRow("message") << ApplicationMessage::keyAddressed(1, 2, 3, 9, QByteArray(40, 'p'));
        QTest::newRow("page") << encodePagePayload({.layoutId = 1, .pageId = 2, .records = {record, record}});
        const QVector<ActionList::Action> actions{{2, 0, "/a"_s}, {100, 5, {}}, {16, 0, "A#B"_s}};
        QTest::newRow("actions") << ActionList::encode(actions).value;
        QTest::newRow("home layout") << HomeLayout::encode(
            {.layoutId = 1, .entries = {{1, 2, 3, 4}, {5, 6, 7, 8}}});
        QTest::newRow("custom layout") << CustomLayoutRecord::encode(
            {.layoutNumber = 1, .title = "中文"_s, .keys = {{1, 5}, {6, 10}, {11, 15}}});
    }

    void validBytes()
    {
        QFETCH(QByteArray, bytes);
        for (int size = 0; size <= bytes.size() && !QTest::currentTestFailed(); ++size)
            decodeAll(bytes.left(size));
        QRandomGenerator random(Seed);
        for (int round = 0; round < Rounds && !QTest::currentTestFailed(); ++round)
            decodeAll(mutated(random, bytes));
    }
};

QTEST_APPLESS_MAIN(WireRobustness)
#include "tst_wire_robustness.moc"
