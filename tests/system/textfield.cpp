// A text field of another program, for tests that watch what vorlindesk types.
//
// Usage: textfield FILE
// Shows a window with one text field that takes the focus, and keeps FILE equal to what the field holds, in
// UTF-8. FILE comes into being (empty) when the field has the focus, so a test knows from it when it may
// start.
#include <QApplication>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <cstdio>

namespace {

class TextField : public QPlainTextEdit
{
public:
    explicit TextField(const QString &file)
        : mFile(file)
    {
        setWindowTitle(QStringLiteral("textfield"));
        resize(480, 160);
        connect(this, &QPlainTextEdit::textChanged, this, &TextField::save);
    }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QPlainTextEdit::focusInEvent(event);
        save();
    }

private:
    /// Replaces the file as a whole: a reader never meets half a text.
    void save()
    {
        QSaveFile file(mFile);
        if (!file.open(QIODevice::WriteOnly) || file.write(toPlainText().toUtf8()) < 0 || !file.commit()) {
            std::fprintf(stderr, "cannot write %s: %s\n", qUtf8Printable(mFile),
                         qUtf8Printable(file.errorString()));
            QCoreApplication::exit(1);
        }
    }

    const QString mFile;
};

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: textfield FILE\n", stderr);
        return 2;
    }
    TextField field(arguments.at(1));
    field.show();
    field.activateWindow();
    return QCoreApplication::exec();
}
