/// Asks for the part of a picture that shall be used.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <functional>

class QWidget;

namespace vorlindesk {
class LanguageManager;
}

namespace CropDialog {

/// Shows the picture @p file behind a frame of @p target's shape and waits until the person has chosen. The
/// file is read on a thread of its own.
/// @return the chosen part in exactly @p target pixels; null when it was cancelled, or when the file is no
/// picture that can be used, which the person has been told.
QImage ask(QWidget *parent, const vorlindesk::LanguageManager &language, const QString &file, QSize target);

/// For tests: while one is set, no dialog is shown; it gets what is asked and gives the picture.
using Answer = std::function<QImage(const QString &file, QSize target)>;
void setAnswer(Answer answer);

} // namespace CropDialog
