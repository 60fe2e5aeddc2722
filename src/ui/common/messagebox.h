/// The one way in which the windows speak to the person in a box.
#pragma once

#include <QHash>
#include <QMessageBox>
#include <QString>
#include <functional>

namespace MessageBox {

/// Shows a warning with @p text over @p parent and runs until the person has closed it.
QMessageBox::StandardButton warn(QWidget *parent, const QString &text, QSize size = {});

/// Tells @p text with an OK button, under @p title, and runs until the person has closed the box.
QMessageBox::StandardButton inform(QWidget *parent, const QString &title, const QString &text);

/// What question() asks. Texts are plain.
struct Question
{
    QString text;        ///< the question itself
    QString explanation; ///< what follows from the answers; may be empty
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    QMessageBox::StandardButton preset = QMessageBox::Yes; ///< chosen by Enter
    QString styleSheet = {};                               ///< the dark style when empty
    QHash<int, QString> captions =
        {};             ///< other texts for buttons, by StandardButton, in the person's language
    QString title = {}; ///< of the box; the program's name when empty
};

/// Asks and waits for the answer; Escape and closing the box count as Cancel, or as No where there is no
/// Cancel. @p onClicked is called with the button before the box closes (QMessageBox::buttonClicked).
QMessageBox::StandardButton question(QWidget *parent, const Question &question,
                                     const std::function<void(QAbstractButton *)> &onClicked = {});

/// For tests: while one is set, boxes are not shown; each is handed to it, and its result is the answer.
using Answer = std::function<QMessageBox::StandardButton(const QMessageBox &box)>;
void setAnswer(Answer answer);

} // namespace MessageBox
