/// The one way in which the main window speaks to the person in a box.
#pragma once

#include <QMessageBox>
#include <QString>
#include <functional>

namespace MessageBox {

/// Shows a warning with @p text over @p parent and runs until the person has closed it.
QMessageBox::StandardButton warn(QWidget *parent, const QString &text, QSize size);

/// For tests: while one is set, boxes are not shown; each is handed to it, and its result is the answer.
using Answer = std::function<QMessageBox::StandardButton(const QMessageBox &box)>;
void setAnswer(Answer answer);

} // namespace MessageBox
