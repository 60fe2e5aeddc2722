#include "steprow.h"

#include "stepcombination.h"
#include "stepcommands.h"
#include "stepmodel.h"
#include "stepstyle.h"
#include "textlimit.h"
#include "ui_common/filedialog.h"

#include <QDir>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSpinBox>
#include <QTextDocument>
#include <QToolButton>

using Kind = StepContent::Kind;

namespace {

constexpr int CounterWidth = 58; // "1234/128"
constexpr int DelayWidth = 120;
constexpr int TextMargin = 2; // of the document: two lines are in view

QToolButton *makeButton(const char *name, const char *icon, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    button->setIcon(QIcon(QString::fromLatin1(icon)));
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void nameButton(QToolButton *button, const QString &name)
{
    button->setAccessibleName(name);
    button->setToolTip(name);
}

} // namespace

StepRow::StepRow(StepModel &model, const QModelIndex &index, QWidget *parent)
    : QWidget(parent)
    , mModel(model)
    , mIndex(index)
    , mpLayout(new QHBoxLayout(this))
    , mpCounter(new QLabel(this))
    , mpCopy(makeButton("copy", ":/icon/edit/copy.png", this))
    , mpRemove(makeButton("remove", ":/icon/edit/close.png", this))
{
    mpCounter->setObjectName(QStringLiteral("counter"));
    mpCounter->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    mpCounter->setFixedWidth(CounterWidth);
    mpLayout->setContentsMargins(0, 4, 8, 4);
    mpLayout->setSpacing(6);
    mpLayout->addStretch();
    mpLayout->addWidget(mpCounter);
    mpLayout->addWidget(mpCopy);
    mpLayout->addWidget(mpRemove);
    for (QToolButton *button : {mpCopy, mpRemove})
        watch(button);
    connect(mpCopy, &QToolButton::clicked, this, [this] { emit copyClicked(row()); });
    connect(mpRemove, &QToolButton::clicked, this, [this] { emit removeClicked(row()); });
    refresh();
}

void StepRow::refresh()
{
    const StepModel::Steps steps = mModel.steps({row()});
    if (steps.isEmpty())
        return;
    if (const Kind kind = StepContent::kindOf(steps.first().fid); kind != mKind)
        makeContent(kind);
    showContent();
    showCounter();
    nameParts();
}

void StepRow::makeContent(Kind kind)
{
    mKind = kind;
    for (QWidget *part : {mpContent, static_cast<QWidget *>(mpChoose)}) {
        if (part) {
            part->hide();
            part->deleteLater(); // it may be what has just been clicked
        }
    }
    mpContent = nullptr;
    mpChoose = nullptr;
    if (kind == Kind::Path || kind == Kind::Address)
        mpContent = makeLine(kind == Kind::Path);
    else if (kind == Kind::Text)
        mpContent = makeText();
    else if (kind == Kind::Delay)
        mpContent = makeDelay();
    else if (kind == Kind::Combination)
        mpContent = makeCombination();
    if (!mpContent)
        return;
    mpContent->setObjectName(QStringLiteral("content"));
    mpLayout->insertWidget(0, mpContent, kind == Kind::Delay ? 0 : 1000); // the stretch behind gets nothing
    if (mpChoose)
        mpLayout->insertWidget(1, mpChoose);
    watch(mpContent);
}

QWidget *StepRow::makeLine(bool path)
{
    auto *line = new QLineEdit(this);
    line->setAcceptDrops(false); // steps are dropped on the list, also when a field is below the pointer
    connect(line, &QLineEdit::textEdited, this,
            [this](const QString &typed) { edit(TextLimit::singleLine(typed)); });
    if (path) {
        mpChoose = makeButton("choose", "", this);
        mpChoose->setText(QStringLiteral("\u2026"));
        connect(mpChoose, &QToolButton::clicked, this, &StepRow::chooseFile);
        watch(mpChoose);
    } else {
        line->setPlaceholderText(QStringLiteral("https://"));
    }
    return line;
}

QWidget *StepRow::makeText()
{
    auto *text = new QPlainTextEdit(this);
    text->setAcceptDrops(false);
    text->viewport()->setAcceptDrops(false);
    text->setTabChangesFocus(true);
    text->setUndoRedoEnabled(false); // the list has a history for all of its steps
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->document()->setDocumentMargin(TextMargin);
    text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    text->viewport()->installEventFilter(this);
    connect(text, &QPlainTextEdit::textChanged, this,
            [this, text] { edit(TextLimit::typedText(*text->document())); });
    return text;
}

QWidget *StepRow::makeDelay()
{
    auto *delay = new QSpinBox(this);
    delay->setRange(0, StepContent::MaxDelay);
    delay->setSingleStep(100);
    delay->setButtonSymbols(QAbstractSpinBox::NoButtons);
    delay->setAccelerated(true);
    delay->setFixedWidth(DelayWidth);
    connect(delay, qOverload<int>(&QSpinBox::valueChanged), this,
            [this](int value) { mModel.setDelay(row(), value); });
    return delay;
}

QWidget *StepRow::makeCombination()
{
    auto *combination = new StepCombination(this);
    connect(combination, &StepCombination::edited, this, &StepRow::edit);
    return combination;
}

void StepRow::watch(QWidget *field)
{
    field->installEventFilter(this);
    if (field->focusPolicy() & Qt::WheelFocus)
        field->setFocusPolicy(Qt::StrongFocus); // the wheel scrolls the list
}

void StepRow::edit(const QString &content)
{
    mModel.setContent(row(), content);
}

void StepRow::chooseFile()
{
    const QString folder = QFileInfo(content()).absolutePath();
    // Programs have names without a dot here, which "*.*" would hide.
    const QPointer<StepRow> self(this); // other steps may come while the dialog is open
    const QString path = FileDialog::openFile(window(), tr("Choose the file to open"),
                                              content().isEmpty() ? QDir::homePath() : folder,
                                              tr("All files") + QStringLiteral(" (*)"));
    if (self && !path.isEmpty())
        edit(QDir::toNativeSeparators(path));
}

QString StepRow::content() const
{
    return mModel.steps({row()}).value(0).url;
}

/// Leaves a field that shows the content already alone, for the sake of its cursor.
void StepRow::showContent()
{
    const QSignalBlocker blocker(mpContent);
    if (auto *line = qobject_cast<QLineEdit *>(mpContent)) {
        // A blank at the end is left to whoever types on behind it.
        if (line->text() != content() && TextLimit::singleLine(line->text()) != content()) {
            line->setText(content());
            if (mKind == Kind::Address && !line->hasFocus())
                line->setCursorPosition(0); // the end tells less of an address than its beginning
        }
        line->setToolTip(content().toHtmlEscaped());
    } else if (auto *text = qobject_cast<QPlainTextEdit *>(mpContent)) {
        if (TextLimit::typedText(*text->document()) != content())
            text->setPlainText(content());
    } else if (auto *delay = qobject_cast<QSpinBox *>(mpContent)) {
        delay->setSuffix(QLatin1Char(' ') + tr("ms"));
        delay->setValue(mModel.steps({row()}).value(0).delay);
    } else if (auto *combination = qobject_cast<StepCombination *>(mpContent)) {
        combination->setCombination(content());
    }
}

void StepRow::showCounter()
{
    const vorlinmodel::MultiAction step = mModel.steps({row()}).value(0);
    const int bytes = StepContent::contentBytes(step);
    const QString fault = StepContent::fault(step);
    QString text;
    if (bytes >= 0)
        text = QStringLiteral("%1/%2").arg(bytes).arg(StepContent::maxContentBytes());
    else if (!fault.isEmpty())
        text = QStringLiteral("!");
    mpCounter->setText(text);
    mpCounter->setToolTip(fault.toHtmlEscaped());
    mpCounter->setAccessibleDescription(fault);
    mpCounter->setVisible(!text.isEmpty());
    mpCounter->setStyleSheet(
        QString::fromLatin1(fault.isEmpty() ? StepStyle::Counter : StepStyle::FaultCounter));
}

void StepRow::nameParts()
{
    const int number = row() + 1;
    nameButton(mpCopy, tr("Copy step %1").arg(number));
    nameButton(mpRemove, tr("Remove step %1").arg(number));
    if (mpChoose)
        nameButton(mpChoose, tr("Choose the file of step %1").arg(number));
    if (mpContent && mKind != Kind::Combination)
        mpContent->setAccessibleName(tr("Content of step %1").arg(number));
}

void StepRow::focusContent()
{
    QWidget *part = mpContent ? mpContent : mpCopy;
    part->setFocus(Qt::OtherFocusReason);
    if (auto *line = qobject_cast<QLineEdit *>(part))
        line->selectAll();
    else if (auto *delay = qobject_cast<QSpinBox *>(part))
        delay->selectAll();
}

QWidgetList StepRow::tabChain() const
{
    QWidgetList chain{mpContent, mpChoose, mpCopy, mpRemove};
    chain.removeAll(nullptr);
    return chain;
}

bool StepRow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        emit focused(row());
        break;
    case QEvent::Wheel:
        if (mpContent && !mpContent->hasFocus()) {
            event->ignore(); // to the list, which scrolls
            return true;
        }
        break;
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
        if (filterKey(*event))
            return true;
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

/// Commands that mean the whole list pass the fields by. @return true when the field must not see the key.
bool StepRow::filterKey(QEvent &event)
{
    const auto &key = static_cast<QKeyEvent &>(event);
    const bool escape = key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier;
    if (escape && event.type() == QEvent::KeyPress) {
        emit left();
        return true;
    }
    const bool passes = worksInFields(stepCommand(key));
    if (passes)
        event.ignore();
    return passes;
}
