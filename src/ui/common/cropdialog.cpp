#include "cropdialog.h"

#include "base/language.h"
#include "croppanel.h"
#include "cropview.h"
#include "messagebox.h"
#include "picturereader.h"
#include "style.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int SelectPictureText = 15;

CropDialog::Answer &scriptedAnswer()
{
    static CropDialog::Answer answer;
    return answer;
}

QString text(const char *source)
{
    return QCoreApplication::translate("CropDialog", source);
}

class Dialog : public QDialog
{
public:
    Dialog(QWidget *parent, const vorlindesk::LanguageManager &language, const QString &file, QSize target)
        : QDialog(parent)
        , mFile(file)
        , mTarget(target)
        , mpPanel(new CropPanel(this))
        , mpNote(new QLabel(this))
        , mpButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
    {
        setWindowTitle(language.Text(SelectPictureText));
        setStyleSheet(QStringLiteral("QDialog {background-color: rgb(51, 51, 51);}") +
                      QString::fromLatin1(Style::Button) + QString::fromLatin1(Style::Page));
        mpNote->setTextFormat(Qt::PlainText);
        mpNote->setText(
            text(QT_TRANSLATE_NOOP("CropDialog", "%1 x %2 pixels")).arg(target.width()).arg(target.height()));
        mpPanel->view().setTarget(target);
        mpPanel->view().setHint(text(QT_TRANSLATE_NOOP("CropDialog", "Reading the picture...")));
        for (QAbstractButton *button : mpButtons->buttons())
            button->setIcon({}); // those of the desktop's theme are of another style
        mpButtons->button(QDialogButtonBox::Ok)->setEnabled(false);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(mpPanel, 1);
        layout->addWidget(mpNote);
        layout->addWidget(mpButtons);
        resize(640, 480);
        connect(mpButtons, &QDialogButtonBox::accepted, this, &Dialog::takePart);
        connect(mpButtons, &QDialogButtonBox::rejected, this, &Dialog::reject);
        connect(&mReader, &PictureReader::sigOpened, this, &Dialog::showPicture);
        connect(&mReader, &PictureReader::sigCropped, this, &Dialog::finish);
        mReader.open(file);
    }

    QImage result; ///< of an accepted dialog
    QString problem;

private:
    void showPicture(const OpenedPicture &picture)
    {
        problem = picture.video ? text(QT_TRANSLATE_NOOP("CropDialog", "This file is a video, no picture."))
                                : picture.problem;
        if (!problem.isEmpty())
            return reject();
        mpPanel->view().setPicture(picture.view);
        mpPanel->view().setFocus();
        mpButtons->button(QDialogButtonBox::Ok)->setEnabled(true);
    }

    /// The dialog stays until the part has been taken out of the picture in its full size.
    void takePart()
    {
        mpPanel->setEnabled(false);
        mpButtons->button(QDialogButtonBox::Ok)->setEnabled(false);
        mReader.crop(mFile, mpPanel->view().share(), mTarget);
    }

    void finish(const QImage &picture, const QString &failure)
    {
        result = picture;
        problem = failure;
        done(picture.isNull() ? QDialog::Rejected : QDialog::Accepted);
    }

    const QString mFile;
    const QSize mTarget;
    PictureReader mReader;
    CropPanel *mpPanel;
    QLabel *mpNote;
    QDialogButtonBox *mpButtons;
};

} // namespace

QImage CropDialog::ask(QWidget *parent, const vorlindesk::LanguageManager &language, const QString &file,
                       QSize target)
{
    if (scriptedAnswer())
        return scriptedAnswer()(file, target);
    Dialog dialog(parent, language, file, target);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (!dialog.problem.isEmpty())
        MessageBox::warn(parent, dialog.problem);
    return accepted ? dialog.result : QImage();
}

void CropDialog::setAnswer(Answer answer)
{
    scriptedAnswer() = std::move(answer);
}
