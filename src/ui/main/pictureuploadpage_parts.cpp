// How the picture upload page is built.
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "pictureuploadoptions.h"
#include "pictureuploadpage.h"
#include "ui_common/croppanel.h"
#include "ui_common/cropview.h"
#include "ui_common/style.h"
#include "ui_editor/editorcontext.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>

namespace {

constexpr int CaptionText = 9;
constexpr int PromptText = 14;
constexpr int SelectText = 15;
constexpr int AddText = 16;
constexpr int OptionsWidth = 264;
constexpr int ProgressWidth = 200;

constexpr char PageStyle[] =
    "QComboBox {font-size: 14px;}"
    "QComboBox::drop-down {border: none;width: 20px;}"
    "#setProblem, #facts {color: rgb(190, 190, 190);font-size: 13px;}"
    "QProgressBar {background-color: rgb(36, 36, 36);color: white;border: 1px solid rgb(92, 92, 92);"
    "border-radius: 4px;text-align: center;font-size: 13px;}"
    "QProgressBar::chunk {background-color: rgb(0, 112, 178);border-radius: 3px;}";

} // namespace

PictureUploadPage::PictureUploadPage(EditorContext &context, QWidget *parent,
                                     const vorlinmodel::ConverterOptions &options)
    : QFrame(parent)
    , mContext(context)
    , mJob(context, options)
    , mpCaption(new QLabel(this))
    , mpPrompt(new QLabel(this))
    , mpFile(new QLineEdit(this))
    , mpSelect(new QPushButton(this))
    , mpCrop(new CropPanel(this))
    , mpOptions(new PictureUploadOptions(this))
    , mpMessage(new QLabel(this))
    , mpProgress(new QProgressBar(this))
    , mpCancel(new QPushButton(this))
    , mpAdd(new QPushButton(this))
    , mpSet(new QPushButton(this))
    , mpSetProblem(new QLabel(this))
{
    setObjectName(QStringLiteral("pictureUploadPage"));
    setStyleSheet(QString::fromLatin1(Style::Fields) + QString::fromLatin1(Style::Button) +
                  QString::fromLatin1(Style::Page) + QString::fromLatin1(PageStyle));
    setAcceptDrops(true);
    mpCaption->setObjectName(QStringLiteral("caption"));
    mpFile->setObjectName(QStringLiteral("file"));
    mpFile->setReadOnly(true);
    mpFile->setFocusPolicy(Qt::ClickFocus); // nothing to type
    mpSelect->setObjectName(QStringLiteral("selectPicture"));
    createBars();
}

void PictureUploadPage::createBars()
{
    mpMessage->setObjectName(QStringLiteral("message"));
    mpProgress->setObjectName(QStringLiteral("progress"));
    mpCancel->setObjectName(QStringLiteral("cancel"));
    mpAdd->setObjectName(QStringLiteral("addToGallery"));
    mpSet->setObjectName(QStringLiteral("setOnKey"));
    mpSetProblem->setObjectName(QStringLiteral("setProblem"));
    for (QLabel *label : {mpMessage, mpSetProblem}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    mpProgress->setFixedWidth(ProgressWidth);
    mpProgress->hide();
    mpCancel->hide();
}

bool PictureUploadPage::setup()
{
    layOut();
    connectParts();
    retranslate();
    return true;
}

void PictureUploadPage::layOut()
{
    mpOptions->setFixedWidth(OptionsWidth);
    auto *file = new QHBoxLayout;
    file->setSpacing(16);
    file->addWidget(mpPrompt);
    file->addWidget(mpFile, 1);
    file->addWidget(mpSelect);
    auto *body = new QHBoxLayout;
    body->setSpacing(24);
    body->addWidget(mpCrop, 1);
    body->addWidget(mpOptions);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->addWidget(mpAdd);
    buttons->addWidget(mpSet);
    buttons->addWidget(mpSetProblem, 1);
    buttons->addWidget(mpProgress);
    buttons->addWidget(mpCancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->setSpacing(12);
    layout->addWidget(mpCaption);
    layout->addLayout(file);
    layout->addLayout(body, 1);
    layout->addWidget(mpMessage);
    layout->addLayout(buttons);
}

void PictureUploadPage::connectParts()
{
    connect(mpSelect, &QPushButton::clicked, this, &PictureUploadPage::ask);
    connect(mpAdd, &QPushButton::clicked, this, [this] { start({}); });
    connect(mpSet, &QPushButton::clicked, this, [this] { start(mTarget.key); });
    connect(mpCancel, &QPushButton::clicked, &mJob, &PictureUploadJob::cancel);
    connect(&mpCrop->view(), &CropView::sigChanged, this, &PictureUploadPage::refresh);
    connect(mpOptions, &PictureUploadOptions::sigChanged, this, &PictureUploadPage::changeOptions);
    connect(&mReader, &PictureReader::sigOpened, this, &PictureUploadPage::showPicture);
    connect(&mVideoReader, &VideoReader::sigOpened, this, &PictureUploadPage::showVideo);
    connect(&mJob, &PictureUploadJob::sigProgress, this, &PictureUploadPage::showProgress);
    connect(&mJob, &PictureUploadJob::sigFinished, this, &PictureUploadPage::finish);
    connect(&mContext.edits, &KeyEdits::sigKeysChanged, this, &PictureUploadPage::refreshKey);
    auto *paste = new QShortcut(QKeySequence::Paste, this);
    paste->setContext(Qt::WidgetWithChildrenShortcut);
    connect(paste, &QShortcut::activated, this, &PictureUploadPage::paste);
}

void PictureUploadPage::retranslate()
{
    const vorlindesk::LanguageManager &language = *mContext.framework.languageManager();
    mpCaption->setText(language.Text(CaptionText));
    mpPrompt->setText(language.Text(PromptText));
    mpSelect->setText(language.Text(SelectText));
    mpAdd->setText(language.Text(AddText));
    mpSet->setText(tr("Set on the selected key"));
    mpCancel->setText(tr("Cancel"));
    mpCrop->view().setHint(tr("Drop a picture or a video here, paste one, or choose a file."));
    mpCrop->retranslate();
    mpOptions->retranslate();
    if (!mJob.isBusy())
        mpMessage->clear();
    refreshKey();
}
