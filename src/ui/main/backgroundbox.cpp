#include "backgroundbox.h"

#include "base/language.h"
#include "model/conversionqueue.h"
#include "model/layoutbackground.h"
#include "pagesmenu.h"
#include "ui_common/cropdialog.h"
#include "ui_common/filedialog.h"
#include "ui_common/knownpicture.h"
#include "ui_editor/gallerypictures.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>

namespace {

constexpr int ImageText = 86;

constexpr char BoxStyle[] =
    "QToolButton {background-color: rgb(70, 70, 70);border: 1px solid rgb(108, 108, 108);border-radius: 4px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
    "QToolButton:disabled {border-color: rgb(80, 80, 80);}"
    "QCheckBox {color: white;font-size: 14px;}"
    "QCheckBox:disabled {color: rgb(108, 108, 108);}"
    "QCheckBox:focus {color: rgb(0, 160, 255);}"
    "QProgressBar {border: 1px solid rgb(92, 92, 92);border-radius: 4px;background-color: rgb(36, 36, 36);}"
    "QProgressBar::chunk {background-color: rgb(0, 160, 255);}";

/// "1, 2, 5", or "1–16": no page between the first and the last is left out.
QString listed(const QVector<int> &pages)
{
    constexpr int few = 3;
    if (pages.size() > 2 && pages.last() - pages.first() == pages.size() - 1)
        return QStringLiteral("%1–%2").arg(pages.first()).arg(pages.last());
    QStringList numbers;
    for (const int page : pages.mid(0, few))
        numbers.append(QString::number(page));
    return numbers.join(QStringLiteral(", ")) + (pages.size() > few ? QStringLiteral(" …") : QString());
}

} // namespace

BackgroundBox::BackgroundBox(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mLanguage(language)
    , mpCaption(new QLabel(this))
    , mpChoose(new QPushButton(this))
    , mpRemove(new QToolButton(this))
    , mpPages(new QPushButton(this))
    , mpPagesMenu(new PagesMenu(this))
    , mpEmptyKeys(new QCheckBox(this))
    , mpProgress(new QWidget(this))
    , mpCancel(new QPushButton(mpProgress))
    , mpOptions(new QStackedWidget(this))
{
    setStyleSheet(QString::fromLatin1(BoxStyle));
    mpChoose->setObjectName(QStringLiteral("chooseBackground"));
    mpRemove->setObjectName(QStringLiteral("removeBackground"));
    mpPages->setObjectName(QStringLiteral("backgroundPages"));
    mpEmptyKeys->setObjectName(QStringLiteral("emptyKeysToo"));
    mpCancel->setObjectName(QStringLiteral("cancelBackground"));
    build();
    connectParts();
    retranslate();
}

BackgroundBox::~BackgroundBox()
{
    delete mpQueue; // before its pictures are removed
    for (const QString &path : qAsConst(mMade))
        QFile::remove(path);
}

void BackgroundBox::build()
{
    mpRemove->setIcon(knownIcon(QStringLiteral(":/icon/edit/delete.png")));
    mpRemove->setFixedWidth(34);
    mpRemove->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
    mpPages->setMenu(mpPagesMenu);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(mpChoose);
    buttons->addWidget(mpRemove);
    buttons->addWidget(mpPages);
    buttons->addStretch();

    auto *bar = new QProgressBar(mpProgress);
    bar->setRange(0, 0); // how far the picture is nobody knows
    bar->setTextVisible(false);
    bar->setFixedHeight(8);
    auto *progress = new QHBoxLayout(mpProgress);
    progress->setContentsMargins(0, 0, 0, 0);
    progress->addWidget(bar, 1);
    progress->addWidget(mpCancel);
    mpOptions->addWidget(mpEmptyKeys);
    mpOptions->addWidget(mpProgress);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(mpCaption);
    layout->addLayout(buttons);
    layout->addWidget(mpOptions);
    layout->addStretch();
}

void BackgroundBox::connectParts()
{
    connect(mpChoose, &QPushButton::clicked, this, &BackgroundBox::choosePicture);
    connect(mpRemove, &QToolButton::clicked, this, &BackgroundBox::sigRemoved);
    connect(mpPagesMenu, &PagesMenu::sigPages, this, &BackgroundBox::sigPages);
    connect(mpPagesMenu, &PagesMenu::sigPagesWithKeys, this, &BackgroundBox::sigPagesWithKeys);
    connect(mpEmptyKeys, &QCheckBox::clicked, this, &BackgroundBox::sigEmptyKeysToo);
    connect(mpCancel, &QPushButton::clicked, this, [this] {
        if (mpQueue)
            mpQueue->cancelAll();
    });
}

void BackgroundBox::choosePicture()
{
    const QString filter = QStringLiteral("%1 (%2)").arg(
        mLanguage.Text(ImageText), GalleryPictures::namePatterns().join(QLatin1Char(' ')));
    const QString file = FileDialog::openFile(this, mpChoose->text(), mFolder, filter);
    if (file.isEmpty())
        return;
    mFolder = QFileInfo(file).path();
    const QImage picture = CropDialog::ask(this, mLanguage, file, vorlinmodel::panelPixelSize());
    if (!picture.isNull())
        convert(picture);
}

void BackgroundBox::convert(const QImage &picture)
{
    if (!mpWork)
        mpWork = std::make_unique<QTemporaryDir>();
    const QString path = mpWork->filePath(QStringLiteral("background.png"));
    if (!mpWork->isValid() || !picture.save(path, "PNG")) {
        emit sigProblem(tr("The picture could not be written. Is the disk full?"));
        return;
    }
    if (!mpQueue) {
        mpQueue = new vorlinmodel::ConversionQueue({}, this);
        connect(mpQueue, &vorlinmodel::ConversionQueue::sigFinished, this, &BackgroundBox::onConverted);
    }
    setJob(mpQueue->add({.source = path, .size = vorlinmodel::panelPixelSize()}));
}

void BackgroundBox::onConverted(int id, const vorlinmodel::ConversionResult &result)
{
    if (id != mJob) { // of a layout that is not in view any more
        if (result.success())
            QFile::remove(result.path);
        return;
    }
    setJob(0);
    if (result.success()) {
        mMade.append(result.path);
        emit sigPicture(result.path);
    } else if (result.error != vorlinmodel::ConversionError::Cancelled) {
        emit sigProblem(result.reason);
    }
}

void BackgroundBox::setJob(int id)
{
    mJob = id;
    showParts();
    emit sigBusyChanged();
}

void BackgroundBox::forget()
{
    if (mJob != 0) {
        mpQueue->cancelAll();
        setJob(0);
    }
    for (const QString &path : qAsConst(mMade))
        QFile::remove(path);
    mMade.clear();
}

void BackgroundBox::showValue(const LayoutDraft::Value &value, bool editable)
{
    mHasPicture = !value.background.isEmpty();
    mIsEditable = editable;
    mShownPages = value.pages;
    mpPagesMenu->showPages(value.pages);
    mpEmptyKeys->setChecked(value.emptyKeysToo);
    showParts();
}

void BackgroundBox::showParts()
{
    const bool canChange = mIsEditable && !isBusy();
    mpChoose->setEnabled(canChange);
    for (QWidget *part : {static_cast<QWidget *>(mpRemove), static_cast<QWidget *>(mpPages),
                          static_cast<QWidget *>(mpEmptyKeys)})
        part->setEnabled(canChange && mHasPicture);
    mpOptions->setCurrentWidget(isBusy() ? mpProgress : mpEmptyKeys);
    mpPages->setText(mHasPicture ? tr("Pages: %1").arg(listed(mShownPages)) : tr("Pages"));
}

void BackgroundBox::retranslate()
{
    mpCaption->setText(tr("Background:"));
    mpChoose->setText(tr("Choose a picture…"));
    mpChoose->setToolTip(tr("A picture that spreads over all keys"));
    mpRemove->setToolTip(tr("Remove the background"));
    mpRemove->setAccessibleName(tr("Remove the background"));
    mpPages->setToolTip(tr("The pages on which the keys show it"));
    mpEmptyKeys->setText(tr("Also on keys without a function"));
    mpEmptyKeys->setToolTip(
        tr("Such a key shows its part of the picture, and does nothing when it is pressed"));
    mpCancel->setText(tr("Cancel"));
    mpPagesMenu->retranslate();
    showParts();
}
