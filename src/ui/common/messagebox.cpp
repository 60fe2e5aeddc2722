#include "messagebox.h"

#include "style.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>

namespace {

MessageBox::Answer &scriptedAnswer()
{
    static MessageBox::Answer answer;
    return answer;
}

QMessageBox::StandardButton run(QMessageBox &box, const std::function<void(QAbstractButton *)> &onClicked)
{
    if (!scriptedAnswer())
        return static_cast<QMessageBox::StandardButton>(box.exec());
    const QMessageBox::StandardButton answer = scriptedAnswer()(box);
    if (onClicked)
        onClicked(box.button(answer));
    return answer;
}

} // namespace

QMessageBox::StandardButton MessageBox::warn(QWidget *parent, const QString &text, QSize size)
{
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setStyleSheet(QString::fromLatin1(Style::MessageBox));
    if (size.isValid())
        box.resize(size);
    return run(box, {});
}

QMessageBox::StandardButton MessageBox::inform(QWidget *parent, const QString &title, const QString &text)
{
    QMessageBox box(QMessageBox::Information, title, text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.setStyleSheet(QString::fromLatin1(Style::MessageBox));
    return run(box, {});
}

QMessageBox::StandardButton MessageBox::question(QWidget *parent, const Question &question,
                                                 const std::function<void(QAbstractButton *)> &onClicked)
{
    QMessageBox box(QMessageBox::Question, QCoreApplication::applicationName(), question.text,
                    question.buttons, parent);
    if (!question.title.isEmpty())
        box.setWindowTitle(question.title);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(question.explanation);
    // Its format follows the text, which may hold a title such as "<b>".
    if (auto *explanation = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel")))
        explanation->setTextFormat(Qt::PlainText);
    box.setDefaultButton(question.preset);
    box.setStyleSheet(question.styleSheet.isEmpty() ? QString::fromLatin1(Style::MessageBox)
                                                    : question.styleSheet);
    for (auto caption = question.captions.cbegin(); caption != question.captions.cend(); ++caption) {
        if (auto *button = box.button(static_cast<QMessageBox::StandardButton>(caption.key())))
            button->setText(caption.value());
    }
    if (question.buttons & QMessageBox::Cancel)
        box.setEscapeButton(QMessageBox::Cancel);
    else if (question.buttons & QMessageBox::No)
        box.setEscapeButton(QMessageBox::No);
    if (onClicked)
        QObject::connect(&box, &QMessageBox::buttonClicked, onClicked);
    return run(box, onClicked);
}

void MessageBox::setAnswer(Answer answer)
{
    scriptedAnswer() = std::move(answer);
}
