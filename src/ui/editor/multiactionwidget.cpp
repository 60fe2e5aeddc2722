#include "multiactionwidget.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "editorcontext.h"
#include "keydescriptor.h"
#include "model/customlayouts.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "model/keyface.h"
#include "model/keypicture.h"
#include "stepcommands.h"
#include "steplistview.h"
#include "steprunner.h"
#include "stepstyle.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

using vorlinmodel::key_id_t;

namespace {

constexpr int MultipleActionsTextId = 37;
constexpr int ReturnTextId = 98;
constexpr int SaveTextId = 99;
constexpr QSize PictureSize{60, 56}; // the shape of a key
constexpr int Margin = 12;
constexpr int Spacing = 8;

/// Row and column of the key's first physical key.
PhysicalSlot placeOf(const key_id_t &key)
{
    quint32 keys = 1U << (key.kid - 1);
    if (const auto layout = vorlinmodel::loadCustomLayout(key.lid); layout && key.kid <= layout->keys.size())
        keys = layout->keys.at(key.kid - 1).mask;
    return KeyDescriptor(key.lid, key.pageid, key.kid, keys).mSlots.front();
}

QPushButton *makeButton(const char *name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

MultiActionWidget::MultiActionWidget(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mSteps([&context](int fid) { return StepContent::name(context, fid); })
    , mpRunner(new StepRunner(
          [this](int fid, const QString &content) {
              return mContext.edits.store().execCommand(mKey, fid, content);
          },
          this))
    , mpPicture(new QLabel(this))
    , mpTitle(new QLabel(this))
    , mpList(new StepListView(mSteps, this))
    , mpState(new QLabel(this))
    , mpTest(makeButton("test", this))
    , mpStop(makeButton("stop", this))
    , mpSave(makeButton("save", this))
    , mpReturn(makeButton("return", this))
{
    setObjectName(QStringLiteral("multiActionWidget"));
}

/// The list goes before the steps that it shows.
MultiActionWidget::~MultiActionWidget()
{
    delete mpList;
}

bool MultiActionWidget::setup()
{
    return true; // the rest is built when it is first shown: most starts never do, and it costs time
}

void MultiActionWidget::ensureBuilt()
{
    if (layout())
        return;
    setStyleSheet(QString::fromLatin1(StepStyle::Page) + QString::fromLatin1(Style::Fields) +
                  QString::fromLatin1(Style::Button));
    build();
    connectParts();
    retranslate();
}

void MultiActionWidget::build()
{
    mpPicture->setObjectName(QStringLiteral("keyPicture"));
    mpTitle->setObjectName(QStringLiteral("title"));
    mpState->setObjectName(QStringLiteral("state"));
    mpTitle->setTextFormat(Qt::PlainText);
    mpTitle->setWordWrap(true);
    mpTitle->setStyleSheet(QString::fromLatin1(StepStyle::Title));
    mpState->setTextFormat(Qt::PlainText);
    mpState->setWordWrap(true);
    mpState->setMinimumHeight(2 * mpState->fontMetrics().lineSpacing()); // the list must not jump
    mpStop->hide();

    auto *head = new QHBoxLayout;
    head->setSpacing(Margin);
    head->addWidget(mpPicture);
    head->addWidget(mpTitle, 1);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Spacing);
    buttons->addWidget(mpTest);
    buttons->addWidget(mpStop);
    buttons->addStretch();
    buttons->addWidget(mpSave);
    buttons->addWidget(mpReturn);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    layout->addLayout(head);
    layout->addWidget(mpList, 1);
    layout->addWidget(mpState);
    layout->addLayout(buttons);
}

void MultiActionWidget::connectParts()
{
    connect(mpTest, &QPushButton::clicked, this, &MultiActionWidget::test);
    connect(mpStop, &QPushButton::clicked, mpRunner, &StepRunner::stop);
    connect(mpSave, &QPushButton::clicked, this, &MultiActionWidget::save);
    connect(mpReturn, &QPushButton::clicked, this, &MultiActionWidget::leave);
    connect(&mSteps, &StepModel::changed, this, [this] {
        mpRunner->stop(); // its rows would be others
        mTestText.clear();
        showState();
    });
    connect(mpList, &StepListView::currentStepChanged, this, &MultiActionWidget::onCurrentStepChanged);
    connect(mpRunner, &StepRunner::stateChanged, this, &MultiActionWidget::onTestState);
    connect(mpRunner, &StepRunner::finished, this, &MultiActionWidget::onTestFinished);
    connect(mpRunner, &StepRunner::countdown, this, [this](int seconds) {
        mTestText = tr("Switch to the window that shall get the text: %1 s").arg(seconds);
        showState();
    });
    connect(&mContext.edits, &KeyEdits::sigKeysChanged, this, &MultiActionWidget::onKeysChanged);
    connect(&mContext.faces, &KeyFaces::sigFaceReady, this, &MultiActionWidget::showTitle);
}

void MultiActionWidget::retranslate()
{
    if (!layout())
        return;
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    mpTest->setText(tr("Test"));
    mpTest->setToolTip(tr("Runs the steps on this computer, as far as it can"));
    mpStop->setText(tr("Stop"));
    mpSave->setText(language.Text(SaveTextId));
    mpReturn->setText(language.Text(ReturnTextId));
    mpPicture->setAccessibleName(language.Text(MultipleActionsTextId));
    mpList->retranslate();
    mSteps.retranslate();
    if (!mpRunner->isRunning())
        mTestText.clear(); // it stands in the language before
    showTitle();
    showState();
}

void MultiActionWidget::open(const key_id_t &key, int mainFid)
{
    ensureBuilt();
    mpRunner->stop();
    mKey = key;
    mMainFid = mainFid;
    show(); // first: a box about an unreadable file lies over it
    showTitle();
    load();
    mpList->select(0, 0);
    mpList->scrollToTop();
    mpList->setFocus();
}

bool MultiActionWidget::isModified() const
{
    return mSteps.isModified();
}

void MultiActionWidget::addStep(int fid)
{
    mpList->addFunction(fid);
}

void MultiActionWidget::onCurrentStepChanged(int row)
{
    emit actionItemClicked(mKey, mSteps.steps({row}).value(0).fid, row);
    if (!mpRunner->isRunning())
        mTestText.clear();
    showState();
}

void MultiActionWidget::showTitle()
{
    if (isHidden() || mKey.kid < vorlinmodel::FirstKeyId || mKey.kid > vorlinmodel::LastKeyId)
        return;
    const PhysicalSlot place = placeOf(mKey);
    const QString name = mContext.framework.languageManager()->Text(MultipleActionsTextId);
    const QString text = tr("%1: row %2, column %3, page %4");
    mpTitle->setText(text.arg(name).arg(place.row).arg(place.column).arg(mKey.pageid));
    const QSize size = vorlinmodel::keyPixelSize(mKey);
    const QSize shown = size.scaled(PictureSize.width() * 2, PictureSize.height(), Qt::KeepAspectRatio);
    QImage image =
        vorlinmodel::renderKeyFace(mContext.faces.face(mKey), size, 0, shown * devicePixelRatioF());
    image.setDevicePixelRatio(devicePixelRatioF());
    mpPicture->setFixedSize(shown);
    mpPicture->setPixmap(QPixmap::fromImage(image));
}

void MultiActionWidget::showState()
{
    const bool running = mpRunner->isRunning();
    mpTest->setVisible(!running);
    mpStop->setVisible(running);
    mpTest->setEnabled(!mSteps.steps().isEmpty());
    mpSave->setEnabled(isModified());
    const int current = mpList->currentIndex().row();
    const QString fault =
        mSteps.steps().isEmpty() ? QString() : StepContent::fault(mSteps.steps({current}).value(0));
    const bool tooMany = StepContent::listBytes(mSteps.steps()) > StepContent::maxListBytes();
    if (!mTestText.isEmpty())
        mpState->setText(mTestText);
    else if (!fault.isEmpty())
        mpState->setText(tr("Step %1: %2").arg(current + 1).arg(fault));
    else
        mpState->setText(stateText());
    const bool bad = mTestText.isEmpty() && (!fault.isEmpty() || tooMany);
    mpState->setStyleSheet(bad ? QString::fromLatin1(StepStyle::Fault) : QString());
}

QString MultiActionWidget::stateText() const
{
    const StepModel::Steps &steps = mSteps.steps();
    const QString size = tr("Steps: %1, %2 of %3 bytes")
                             .arg(steps.size())
                             .arg(StepContent::listBytes(steps))
                             .arg(StepContent::maxListBytes());
    return isModified() ? size + QStringLiteral(" - ") + tr("not saved yet") : size;
}

/// The step editing commands come before shortcuts of the window with the same keys.
bool MultiActionWidget::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        hasCommand(stepCommand(*static_cast<QKeyEvent *>(event)))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const StepCommand command = stepCommand(*static_cast<QKeyEvent *>(event));
        if (hasCommand(command)) {
            run(command);
            return true;
        }
    }
    return QFrame::event(event);
}

/// Those that a text field has too mean the steps only while the list has the focus.
bool MultiActionWidget::hasCommand(StepCommand command) const
{
    if (command == StepCommand::None || !(worksInFields(command) || mpList->hasFocus()))
        return false;
    if (command == StepCommand::Undo)
        return mSteps.canUndo();
    return command != StepCommand::Redo || mSteps.canRedo();
}

void MultiActionWidget::run(StepCommand command)
{
    if (command == StepCommand::Save)
        save();
    else
        mpList->run(command);
}

void MultiActionWidget::hideEvent(QHideEvent *event)
{
    mpRunner->stop();
    QFrame::hideEvent(event);
}
