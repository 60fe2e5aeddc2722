/// The one way in which the windows ask for a file.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace FileDialog {

/// @p filter as QFileDialog takes it. @return the chosen file, empty when the person thought better of it.
QString openFile(QWidget *parent, const QString &caption, const QString &folder, const QString &filter);
QStringList openFiles(QWidget *parent, const QString &caption, const QString &folder, const QString &filter);

/// The same for a folder that there is.
QString openFolder(QWidget *parent, const QString &caption, const QString &folder);

/// For tests: while one is set, no dialog is shown; it gets the caption and gives the files, or the folder.
using Answer = std::function<QStringList(const QString &caption)>;
void setAnswer(Answer answer);

} // namespace FileDialog
