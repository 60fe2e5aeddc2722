#include "filedialog.h"

#include <QFileDialog>

namespace {

FileDialog::Answer &scriptedAnswer()
{
    static FileDialog::Answer answer;
    return answer;
}

} // namespace

QString FileDialog::openFile(QWidget *parent, const QString &caption, const QString &folder,
                             const QString &filter)
{
    if (scriptedAnswer())
        return scriptedAnswer()(caption).value(0);
    return QFileDialog::getOpenFileName(parent, caption, folder, filter);
}

QStringList FileDialog::openFiles(QWidget *parent, const QString &caption, const QString &folder,
                                  const QString &filter)
{
    if (scriptedAnswer())
        return scriptedAnswer()(caption);
    return QFileDialog::getOpenFileNames(parent, caption, folder, filter);
}

QString FileDialog::openFolder(QWidget *parent, const QString &caption, const QString &folder)
{
    if (scriptedAnswer())
        return scriptedAnswer()(caption).value(0);
    return QFileDialog::getExistingDirectory(parent, caption, folder);
}

void FileDialog::setAnswer(Answer answer)
{
    scriptedAnswer() = std::move(answer);
}
