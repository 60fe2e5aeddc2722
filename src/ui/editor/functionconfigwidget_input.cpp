// Where the mouse and the keyboard are.
#include "functionconfigwidget.h"

#include "functionlist.h"
#include "keyboardwidget.h"
#include "keywidget.h"
#include "model/functionids.h"
#include "noticebar.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace {

constexpr char BrightHint[] = "color: rgb(255, 255, 255);background-color: transparent;";
constexpr char DimHint[] = "color: rgb(160, 160, 160);background-color: transparent;";

/// The line into which a widget with the focus lets the person type; null when it has none.
const QLineEdit *lineOf(const QObject *widget)
{
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->lineEdit();
    if (qobject_cast<const QAbstractSpinBox *>(widget))
        return widget->findChild<QLineEdit *>();
    return qobject_cast<const QLineEdit *>(widget);
}

bool isTextField(const QWidget *widget)
{
    return lineOf(widget) || qobject_cast<const QPlainTextEdit *>(widget);
}

/// Whether a text field has something of its own to undo or redo.
bool hasOwnHistory(const QObject *field, bool undo)
{
    if (const QLineEdit *line = lineOf(field))
        return undo ? line->isUndoAvailable() : line->isRedoAvailable();
    if (const auto *text = qobject_cast<const QPlainTextEdit *>(field))
        return undo ? text->document()->isUndoAvailable() : text->document()->isRedoAvailable();
    return false;
}

} // namespace

/// Text fields claim Ctrl+Z even when they have nothing to undo; then it is the page's.
void FunctionConfigWidget::watchFocus()
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *before, QWidget *now) {
        if (before && before != mpFunctionList)
            before->removeEventFilter(this);
        if (now && isTextField(now) && isAncestorOf(now))
            now->installEventFilter(this);
    });
}

bool FunctionConfigWidget::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mpFunctionList) {
        if (event->type() == QEvent::Enter)
            onFunctionListButtonMouseEnter();
        else if (event->type() == QEvent::Leave)
            onFunctionListButtonMouseLeave();
        return QFrame::eventFilter(watched, event);
    }
    if (event->type() != QEvent::ShortcutOverride)
        return QFrame::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const bool undo = key->matches(QKeySequence::Undo);
    if ((!undo && !key->matches(QKeySequence::Redo)) || hasOwnHistory(watched, undo))
        return QFrame::eventFilter(watched, event);
    event->ignore();
    return true;
}

void FunctionConfigWidget::onFunctionListButtonMouseClicked()
{
    showHint(true);
}

void FunctionConfigWidget::onFunctionListButtonMouseEnter()
{
    showHint(true);
}

void FunctionConfigWidget::onFunctionListButtonMouseLeave()
{
    showHint(false);
}

/// The hint on how to use the list is read when it is needed.
void FunctionConfigWidget::showHint(bool isBright)
{
    mpHint->setStyleSheet(QString::fromLatin1(isBright ? BrightHint : DimHint));
}

void FunctionConfigWidget::takeItem(const QString &picture, const QString &video)
{
    const KeyboardWidget *grid = isFuncListForMultiAction ? nullptr : mpGridArea->grid();
    KeyWidget *cell = grid ? grid->cell(grid->currentKey().kid) : nullptr;
    if (!cell || cell->fid() == 0)
        return mpNotice->notify(tr("Select a key that has a function first."));
    const bool takesVideo = cell->fid() == vorlinmodel::VIDEO_FID && !video.isEmpty();
    if (picture.isEmpty() && !takesVideo)
        return mpNotice->notify(tr("Only keys with the function for videos play them."));
    cell->takePicture(picture, video);
}
