#include "panelwindow.h"

#include "deviceface.h"
#include "model/keyid.h"
#include "panel_link/panelserver.h"
#include "style.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

constexpr int TickMs = 40;
constexpr int LogHeight = 170;
constexpr int MaxLogLines = 2000;

QLabel *newLabel(const char *name, QBoxLayout &row, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    row.addWidget(label);
    return label;
}

QPushButton *newButton(const QString &text, QBoxLayout &row, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setFocusPolicy(Qt::NoFocus);
    row.addWidget(button);
    return button;
}

} // namespace

PanelWindow::PanelWindow(PanelServer &server)
    : QWidget(nullptr, Qt::Window | Qt::WindowDoesNotAcceptFocus)
    , mServer(server)
    , mpFace(new DeviceFace(this))
{
    setObjectName(QStringLiteral("panelWindow"));
    setWindowTitle(QStringLiteral("Virtual panel"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setStyleSheet(QLatin1String(PanelStyle::Window));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(18, 18, 18, 14);
    column->setSpacing(12);
    column->addWidget(mpFace, 0, Qt::AlignHCenter);
    buildStatusRow(*column);
    buildButtonRow(*column);
    buildLog(*column);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(mpFace, &DeviceFace::sigKeyPressed, this, [this](int key) { mServer.pressKey(key); });
    connect(&mTick, &QTimer::timeout, this, &PanelWindow::onTick);
    mTick.start(TickMs);
    onTick();
}

void PanelWindow::buildStatusRow(QBoxLayout &column)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    column.addLayout(row);
    mpPlug = newLabel("plug", *row, this);
    mpPlace = newLabel("place", *row, this);
    mpBrightness = newLabel("brightness", *row, this);
    mpViolations = newLabel("violations", *row, this);
    mpLastEvent = newLabel("lastEvent", *row, this);
    mpLastEvent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    mpLastEvent->setSizePolicy(QSizePolicy::Ignored,
                               QSizePolicy::Preferred); // a long event must not widen the window
    row->setStretchFactor(mpLastEvent, 1);
}

void PanelWindow::buildButtonRow(QBoxLayout &column)
{
    auto *row = new QHBoxLayout;
    column.addLayout(row);
    mpPlugButton = newButton(QString(), *row, this);
    mpPlugButton->setMinimumWidth(92);
    row->addStretch(1);
    mpPrevious = newButton(QStringLiteral("Previous page"), *row, this);
    mpNext = newButton(QStringLiteral("Next page"), *row, this);
    row->addStretch(1);
    QPushButton *log = newButton(QStringLiteral("Log"), *row, this);
    log->setMinimumWidth(92);
    log->setCheckable(true);
    connect(mpPlugButton, &QPushButton::clicked, this, &PanelWindow::togglePlug);
    connect(mpPrevious, &QPushButton::clicked, this, [this] { turnPage(-1); });
    connect(mpNext, &QPushButton::clicked, this, [this] { turnPage(1); });
    connect(log, &QPushButton::toggled, this, &PanelWindow::toggleLog);
}

void PanelWindow::buildLog(QBoxLayout &column)
{
    mpLog = new QPlainTextEdit(this);
    mpLog->setReadOnly(true);
    mpLog->setFocusPolicy(Qt::NoFocus);
    mpLog->setMaximumBlockCount(MaxLogLines);
    mpLog->setFixedHeight(LogHeight);
    mpLog->hide();
    column.addWidget(mpLog);
}

/// Looks whether anything changed: reports may come by the thousand a second, far more often than eyes can
/// follow.
void PanelWindow::onTick()
{
    const int revision = mServer.revision();
    if (revision == mRevision)
        return mpFace->animate();
    mRevision = revision;
    refresh();
}

void PanelWindow::refresh()
{
    PanelState state;
    QStringList events;
    int eventCount = 0;
    int violations = 0;
    mServer.withModel([&](PanelModel &model) {
        state = model.state();
        events = model.journal().events();
        eventCount = model.journal().eventCount();
        violations = model.violations().size();
    });
    const bool plugged = mServer.isPlugged();
    mpFace->show(state, plugged);
    mpPlug->setText(plugged ? QStringLiteral("Plugged in") : QStringLiteral("Unplugged"));
    mpPlug->setStyleSheet(QLatin1String(plugged ? PanelStyle::Plugged : PanelStyle::Unplugged));
    mpPlugButton->setText(plugged ? QStringLiteral("Unplug") : QStringLiteral("Plug in"));
    mpPlace->setText(
        QStringLiteral("Layout %1, page %2/%3").arg(state.layout).arg(state.page).arg(vorlinmodel::MaxPage));
    mpBrightness->setText(QStringLiteral("Brightness %1").arg(state.brightness));
    mpViolations->setText(violations == 1 ? QStringLiteral("1 violation")
                                          : QStringLiteral("%1 violations").arg(violations));
    mpViolations->setStyleSheet(QLatin1String(violations > 0 ? PanelStyle::Alarm : PanelStyle::Calm));
    mpPrevious->setEnabled(state.page > 1);
    mpNext->setEnabled(state.page < vorlinmodel::MaxPage);
    mpLastEvent->setText(events.isEmpty() ? QString() : events.last());
    appendEvents(events, eventCount);
}

void PanelWindow::appendEvents(const QStringList &events, int eventCount)
{
    const int fresh = qMin(eventCount - mShownEvents, events.size());
    for (const QString &event : events.mid(events.size() - fresh)) {
        const bool alarm = event.startsWith(QLatin1String(PanelJournal::ViolationPrefix));
        mpLog->appendHtml(
            QStringLiteral("<span style=\"color:%1\">%2</span>")
                .arg(alarm ? QStringLiteral("#ff6961") : QStringLiteral("#d2d2d2"), event.toHtmlEscaped()));
    }
    mShownEvents = eventCount;
}

void PanelWindow::turnPage(int step)
{
    mServer.withModel(
        [step](PanelModel &model) { model.selectPage(model.state().layout, model.state().page + step); });
}

void PanelWindow::togglePlug()
{
    if (mServer.isPlugged())
        mServer.unplug();
    else
        mServer.plug();
}

void PanelWindow::toggleLog(bool shown)
{
    mpLog->setVisible(shown);
}
