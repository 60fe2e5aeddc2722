#include "panelupgrade.h"

#include "outbox.h"
#include "panelfaults.h"
#include "paneljournal.h"
#include "wire/applicationmessage.h"
#include "wire/crc16.h"
#include "wire/functioncode.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

PanelUpgrade::PanelUpgrade(PanelState &state, PanelJournal &journal, Outbox &outbox,
                           const PanelFaults &faults)
    : mState(state)
    , mJournal(journal)
    , mOutbox(outbox)
    , mFaults(faults)
{}

void PanelUpgrade::take(const QByteArray &body)
{
    if (body.isEmpty())
        return mJournal.violation(QStringLiteral("the subcode is missing"));
    const QByteArray data = body.mid(1);
    switch (static_cast<Subcode>(body.at(0))) {
    case Subcode::UpgradeRequest:
        return takeRequest(data);
    case Subcode::EraseRequest:
        return takeErase(data);
    case Subcode::FirmwareData:
        return takeData(data);
    case Subcode::UpgradeStatus:
        return takeStatus(data);
    case Subcode::FileUpload:
        return takeFile(data);
    default:
        mJournal.violation(QStringLiteral("subcode %1").arg(static_cast<quint8>(body.at(0))));
    }
}

void PanelUpgrade::reset()
{
    mStep = Step::Idle;
    mReceived.clear();
}

bool PanelUpgrade::takeRestart()
{
    return std::exchange(mRestart, false);
}

void PanelUpgrade::expect(Step wanted, const char *message)
{
    if (mStep != wanted)
        mJournal.violation(QStringLiteral("%1 out of its order").arg(QLatin1String(message)));
}

void PanelUpgrade::takeRequest(const QByteArray &data)
{
    if (!data.isEmpty())
        mJournal.violation(QStringLiteral("an upgrade request with data"));
    reset(); // a new try may begin after any step
    mStep = Step::Requested;
    mJournal.event(QStringLiteral("upgrade requested"));
    mOutbox.addMessage(ApplicationMessage::subcoded(Subcode::UpgradeResponse, {}));
}

void PanelUpgrade::takeErase(const QByteArray &data)
{
    if (!data.isEmpty())
        mJournal.violation(QStringLiteral("an erase request with data"));
    expect(Step::Requested, "erase request");
    mStep = Step::Erased;
    mJournal.event(QStringLiteral("firmware slot erased"));
    mOutbox.addMessage(ApplicationMessage::subcoded(Subcode::EraseResponse, {}));
}

void PanelUpgrade::takeData(const QByteArray &data)
{
    expect(Step::Erased, "firmware data");
    mStep = Step::Received;
    mReceived = data;
    auto crc = crc16(data);
    if (mFaults.wrongCrc)
        crc = static_cast<quint16>(~crc);
    QByteArray value(2, '\0');
    qToLittleEndian(crc, value.data());
    mJournal.event(QStringLiteral("firmware of %1 bytes received").arg(data.size()));
    mOutbox.addMessage(ApplicationMessage::subcoded(Subcode::CrcReport, value));
}

void PanelUpgrade::takeStatus(const QByteArray &data)
{
    expect(Step::Received, "upgrade status");
    if (data.size() != 1 || static_cast<quint8>(data.at(0)) > 1)
        mJournal.violation(QStringLiteral("an upgrade status other than 0 and 1"));
    const bool taken = mStep == Step::Received && data == QByteArray(1, '\0');
    if (taken)
        mState.firmware = mReceived;
    mRestart = taken;
    mJournal.event(taken ? QStringLiteral("firmware taken, restarting") : QStringLiteral("firmware dropped"));
    reset();
}

void PanelUpgrade::takeFile(const QByteArray &data)
{
    constexpr int nameArea = 32;
    if (data.size() < nameArea)
        return mJournal.violation(QStringLiteral("the name of an uploaded file is cut short"));
    const QByteArray area = data.left(nameArea);
    const QByteArray name = area.left(area.indexOf('\0'));
    if (name.isEmpty() || QString::fromUtf8(name).toUtf8() != name)
        mJournal.violation(QStringLiteral("the name of an uploaded file is empty or not UTF-8"));
    if (std::any_of(area.cbegin() + name.size(), area.cend(), [](char byte) { return byte != 0; }))
        mJournal.violation(QStringLiteral("bytes behind the name of an uploaded file are not zero"));
    mState.files.insert(QString::fromUtf8(name), data.mid(nameArea));
    mJournal.event(
        QStringLiteral("file %1 of %2 bytes").arg(QString::fromUtf8(name)).arg(data.size() - nameArea));
}
