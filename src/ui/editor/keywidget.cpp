#include "keywidget.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "base/log.h"
#include "cellstyle.h"
#include "editorcontext.h"
#include "editorlogtext.h"
#include "functionlist.h"
#include "keypicturelabel.h"
#include "model/ifunctionmanager.h"
#include "model/keypicture.h"

#include <QAction>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

using vorlindesk::Log;
using vorlindesk::LogLevel;
using Mark = PendingEdits::Mark;

namespace {

constexpr int Border = 6; // pixels of the cell beside the picture, both sides together

QColor colourOf(Mark mark)
{
    switch (mark) {
    case Mark::Pending:
        return {255, 176, 0};
    case Mark::Failed:
        return {232, 48, 48};
    case Mark::None:
        break;
    }
    return {};
}

QString spokenPlace(const KeyDescriptor &descriptor)
{
    const QRect cells = descriptor.cellsCovered();
    const auto number = [](int index) {
        return QString::number(index + 1);
    };
    const QString row = cells.height() > 1
                            ? KeyWidget::tr("Rows %1-%2").arg(number(cells.top()), number(cells.bottom()))
                            : KeyWidget::tr("Row %1").arg(number(cells.top()));
    const QString column =
        cells.width() > 1 ? KeyWidget::tr("columns %1-%2").arg(number(cells.left()), number(cells.right()))
                          : KeyWidget::tr("column %1").arg(number(cells.left()));
    return KeyWidget::tr("%1, %2", "row and column").arg(row, column);
}

} // namespace

KeyWidget::KeyWidget(EditorContext &context, const KeyDescriptor &descriptor, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mDescriptor(descriptor)
    , mEnabled(descriptor.mPhyKeyCount)
    , key_id_{descriptor.mLayoutId, descriptor.mPageId, descriptor.mKeyId}
{}

KeyWidget::~KeyWidget() = default;

bool KeyWidget::setup()
{
    mpIcon = new KeyPictureLabel(this);
    mpIcon->setObjectName(QStringLiteral("icon"));
    setStyleSheet(QString::fromLatin1(CellStyle::Untouched));
    setFrameShape(QFrame::Box);
    setFrameShadow(QFrame::Plain);
    mpIcon->setStyleSheet(QString::fromLatin1(CellStyle::Icon));
    mpIcon->resize(70, 70);
    mpIcon->setScaledContents(true);
    mpIcon->setAcceptDrops(false);
    if (mEnabled > 0) { // else nobody can see it
        setFocusPolicy(Qt::StrongFocus);
        setAcceptDrops(true);
        mpMenu = std::make_unique<QMenu>();
        mpMenu->setStyleSheet(QString::fromLatin1(CellStyle::Menu));
        mpDeleteAction = new QAction(this);
        connect(mpDeleteAction, &QAction::triggered, this, &KeyWidget::onDeleteActionHandler);
        connect(this, &KeyWidget::clicked, this, &KeyWidget::onButtonClicked);
    }
    retranslate();
    return true;
}

void KeyWidget::retranslate()
{
    if (mpDeleteAction)
        mpDeleteAction->setText(mContext.framework.languageManager()->Text(vorlindesk::TextId::Delete));
    updateMark();
}

void KeyWidget::updateFid()
{
    const auto record = mContext.edits.store().getKeyAttribute(key_id_);
    mFId = record ? record->mFId : 0;
    if (record)
        Log(LogLevel::Info, EditorLogText::UpdateFid, mFId);
}

void KeyWidget::updateKeyIcon()
{
    if (!mpIcon)
        return;
    mpIcon->resize(width() - Border, height() - Border);
    const qreal scale = devicePixelRatioF();
    const QSize size = (QSizeF(mpIcon->size()) * scale).toSize();
    const vorlinmodel::KeyFace face = mFId == 0 ? vorlinmodel::KeyFace{} : mContext.faces.face(key_id_);
    const bool isEmpty = size.isEmpty() || (face.picture.isNull() && face.title.isEmpty());
    const Shown shown = isEmpty ? Shown{} : Shown{face.picture.cacheKey(),
                                                  face.title,
                                                  face.titleFontSize,
                                                  face.titleColour.rgb(),
                                                  face.titleAlignment,
                                                  face.imageEffects,
                                                  size};
    if (shown != mShown) {
        QPixmap pixmap;
        if (!isEmpty) {
            const QSize panelSize = vorlinmodel::keyPixelSize(mDescriptor.mBitMap);
            pixmap = roundedKeyPixmap(vorlinmodel::renderKeyFace(face, panelSize, 0, size), size, scale);
        }
        mpIcon->setPixmap(pixmap);
        mShown = shown;
    }
    mpIcon->move((width() - mpIcon->width()) / 2, (height() - mpIcon->height()) / 2);
}

void KeyWidget::setSelected(bool selected)
{
    const bool isChange = mSelected != selected;
    mSelected = selected;
    if (mpIcon && isChange)
        mpIcon->setStyleSheet(QString::fromLatin1(selected ? CellStyle::SelectedIcon : CellStyle::Icon));
}

void KeyWidget::updateMark()
{
    const PendingEdits &pending = mContext.edits.pending();
    if (mpIcon)
        mpIcon->setMark(colourOf(pending.mark(key_id_)));
    setToolTip(pending.reason(key_id_));
    const QString name = tr("%1: %2", "place and function").arg(spokenPlace(mDescriptor), spokenFunction());
    if (accessibleName() != name)
        setAccessibleName(name);
}

QString KeyWidget::spokenFunction() const
{
    const auto record = mContext.edits.store().getKeyAttribute(key_id_);
    if (!record || record->mFId == 0)
        return tr("empty");
    const QString function = functionName(mContext, record->mFId);
    return record->strTitle.isEmpty() ? function : tr("%1, title '%2'").arg(function, record->strTitle);
}

void KeyWidget::click(Qt::KeyboardModifiers modifiers)
{
    mClickModifiers = modifiers;
    emit clicked();
}

void KeyWidget::activate()
{
    Log(LogLevel::Info, EditorLogText::DoubleClick);
    emit doubleClicked(key_id_, mFId);
}

void KeyWidget::openMenu(const QPoint &globalPosition)
{
    if (!mpMenu || mFId == 0 || mpMenu->isVisible())
        return;
    mpMenu->clear();
    mpMenu->addAction(mpDeleteAction);
    mpMenu->exec(globalPosition);
}

void KeyWidget::onButtonClicked()
{
    Log(LogLevel::Info, EditorLogText::CellClicked);
    emit dataChangeSignal(key_id_, mFId);
}

bool KeyWidget::event(QEvent *event)
{
    if (event->type() == QEvent::ScreenChangeInternal) // the pixels of the new screen may be smaller
        updateKeyIcon();
    if (event->type() != QEvent::ToolTip)
        return QFrame::event(event);
    // Shown for no widget: for this one it would take over the cell's style sheet, and could not be read.
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), toolTip());
    return true;
}

void KeyWidget::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    updateKeyIcon();
}
