#include "messagebox.h"

namespace {

MessageBox::Answer &scriptedAnswer()
{
    static MessageBox::Answer answer;
    return answer;
}

} // namespace

QMessageBox::StandardButton MessageBox::warn(QWidget *parent, const QString &text, QSize size)
{
    QMessageBox box(QMessageBox::Warning, QCoreApplication::applicationName(), text, QMessageBox::Ok, parent);
    box.setTextFormat(Qt::PlainText);
    box.resize(size);
    if (scriptedAnswer())
        return scriptedAnswer()(box);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

void MessageBox::setAnswer(Answer answer)
{
    scriptedAnswer() = std::move(answer);
}
