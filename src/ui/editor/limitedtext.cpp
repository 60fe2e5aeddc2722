#include "limitedtext.h"

#include "attributestyle.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace {

QLabel *plainLabel(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QPlainTextEdit *paragraph(QWidget *parent)
{
    constexpr int frame = 12; // pixels above and below
    auto *edit = new QPlainTextEdit(parent);
    edit->setTabChangesFocus(true);
    edit->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // lines wrap
    edit->document()->setDocumentMargin(1);
    // One line is the least: a mark below takes its room from the lines.
    edit->setMinimumHeight(edit->fontMetrics().lineSpacing() + frame);
    return edit;
}

} // namespace

LimitedText::LimitedText(Form form, TextLimit::Encoding encoding, const QString &name, QWidget *parent)
    : QWidget(parent)
    , mEncoding(encoding)
    , mpLabel(plainLabel(name + QStringLiteral("Label"), this))
    , mpCounter(plainLabel(name + QStringLiteral("Counter"), this))
    , mpFieldRow(new QHBoxLayout) // the layout below takes it over
    , mpProblem(plainLabel(name + QStringLiteral("Problem"), this))
{
    if (form == Form::Line) {
        mpLine = new QLineEdit(this);
        connect(mpLine, &QLineEdit::textChanged, this, &LimitedText::onTextChanged);
    } else {
        mpParagraph = paragraph(this);
        connect(mpParagraph, &QPlainTextEdit::textChanged, this, &LimitedText::onTextChanged);
    }
    field()->setObjectName(name);
    field()->installEventFilter(this);
    mpLabel->setBuddy(field());
    mpProblem->setStyleSheet(QString::fromLatin1(AttributeStyle::Problem));
    mpProblem->setWordWrap(true);
    mpProblem->hide();

    auto *top = new QHBoxLayout;
    top->addWidget(mpLabel, 1);
    top->addWidget(mpCounter);
    mpFieldRow->addWidget(field(), 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::Gap);
    layout->addLayout(top);
    layout->addLayout(mpFieldRow, form == Form::Paragraph ? 1 : 0);
    layout->addWidget(mpProblem);
    showMark();
}

void LimitedText::setLabel(const QString &text)
{
    mpLabel->setText(text.trimmed());
    field()->setAccessibleName(text.trimmed().remove(QLatin1Char(':')).remove(QChar(0xFF1A)));
}

void LimitedText::setPlaceholder(const QString &text)
{
    if (mpLine)
        mpLine->setPlaceholderText(text);
    else
        mpParagraph->setPlaceholderText(text);
}

void LimitedText::addBeside(QWidget *widget)
{
    mpFieldRow->addWidget(widget, 0, Qt::AlignTop);
}

void LimitedText::showStored(const QString &text, bool anew)
{
    if (!anew && text == mStored)
        return;
    mStored = text;
    mUnsent = false;
    const QScopedValueRollback<bool> showing(mShowing, true);
    if (anew || this->text() != text)
        setText(text);
    showMark();
}

void LimitedText::type(const QString &text)
{
    setText(text);
}

void LimitedText::focusField()
{
    field()->setFocus(Qt::ShortcutFocusReason);
    if (mpLine)
        mpLine->selectAll();
    else
        mpParagraph->selectAll();
}

void LimitedText::retranslate()
{
    showMark();
}

/// Undo and redo of the typing stay in the field as long as it has any; then they mean the last edit of any
/// key.
bool LimitedText::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == field() && event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isUndo = key->matches(QKeySequence::Undo);
        const bool isRedo = key->matches(QKeySequence::Redo);
        if ((isUndo || isRedo) && !canUndoHere(isRedo)) {
            event->ignore();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool LimitedText::canUndoHere(bool redo) const
{
    if (mpLine)
        return redo ? mpLine->isRedoAvailable() : mpLine->isUndoAvailable();
    return redo ? mpParagraph->document()->isRedoAvailable() : mpParagraph->document()->isUndoAvailable();
}

QWidget *LimitedText::field() const
{
    if (mpLine)
        return mpLine;
    return mpParagraph;
}

QString LimitedText::text() const
{
    if (mpLine)
        return TextLimit::singleLine(mpLine->text());
    if (mEncoding == TextLimit::Encoding::TextOutput)
        return TextLimit::typedText(*mpParagraph->document());
    return mpParagraph->toPlainText(); // GBK has no no-break space
}

void LimitedText::setText(const QString &text)
{
    if (mpLine) {
        mpLine->setText(text);
        return;
    }
    mpParagraph->setPlainText(text);
    mpParagraph->moveCursor(QTextCursor::End);
}

void LimitedText::onTextChanged()
{
    if (mShowing)
        return;
    const QString typed = text();
    const bool differs = typed != mStored;
    const bool fits = TextLimit::check(typed, mEncoding).fits();
    mUnsent = differs && !fits;
    if (differs && fits)
        mStored = typed;
    showMark();
    if (differs && fits)
        emit sigEdited(typed);
}

void LimitedText::showMark()
{
    const TextLimit::Check check = TextLimit::check(text(), mEncoding);
    const QString sentence = problem(check);
    mpCounter->setText(QStringLiteral("%1/%2").arg(check.bytes).arg(TextLimit::MaxBytes));
    mpCounter->setStyleSheet(QString::fromLatin1(check.bytes > TextLimit::MaxBytes ? AttributeStyle::Problem
                                                                                   : AttributeStyle::Aside));
    mpCounter->setToolTip(tr("Bytes of the text, and how many the panel has room for"));
    mpProblem->setText(sentence);
    mpProblem->setVisible(!sentence.isEmpty());
    field()->setAccessibleDescription(sentence);
    const char *border = sentence.isEmpty() ? "" : AttributeStyle::MarkedField;
    if (field()->styleSheet() != QLatin1String(border))
        field()->setStyleSheet(QString::fromLatin1(border));
}

QString LimitedText::problem(const TextLimit::Check &check) const
{
    if (check.fits())
        return {};
    QStringList reasons;
    if (!check.lacking.isEmpty())
        reasons.append(tr("The panel has no %1").arg(TextLimit::nameCharacters(check.lacking)));
    if (check.bytes > TextLimit::MaxBytes)
        reasons.append(tr("%1 of %2 bytes").arg(check.bytes).arg(TextLimit::MaxBytes));
    // A stored text that does not fit comes from elsewhere, and stands as it is until it is edited.
    const QString consequence = mUnsent ? tr("not sent yet") : tr("the panel shows only a part");
    return tr("%1: %2").arg(reasons.join(QStringLiteral("; ")), consequence);
}
