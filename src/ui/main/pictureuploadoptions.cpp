#include "pictureuploadoptions.h"

#include "pictureuploadpreview.h"
#include "ui_common/choicebox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

using vorlinmodel::VideoFit;

namespace {

constexpr int Gap = 8;

enum Use { AsPicture, AsVideo };
enum Shape { KeyShape, SingleShape };

QSize singleSize()
{
    return {vorlinmodel::PhysicalKeyWidth, vorlinmodel::PhysicalKeyHeight};
}

/// Long names of layouts must not widen the column.
void keepNarrow(QComboBox &box)
{
    box.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box.setMinimumContentsLength(10);
}

} // namespace

PictureUploadOptions::PictureUploadOptions(QWidget *parent)
    : QWidget(parent)
    , mpUseCaption(new QLabel(this))
    , mpUse(new ChoiceBox(this))
    , mpShapeCaption(new QLabel(this))
    , mpShape(new ChoiceBox(this))
    , mpFitCaption(new QLabel(this))
    , mpFit(new ChoiceBox(this))
    , mpCut(new QCheckBox(this))
    , mpPreviewCaption(new QLabel(this))
    , mpPreview(new PictureUploadPreview(this))
    , mpFacts(new QLabel(this))
{
    mpUse->setObjectName(QStringLiteral("use"));
    mpShape->setObjectName(QStringLiteral("shape"));
    mpFit->setObjectName(QStringLiteral("fit"));
    mpCut->setObjectName(QStringLiteral("cut"));
    mpPreview->setObjectName(QStringLiteral("preview"));
    mpFacts->setObjectName(QStringLiteral("facts"));
    mpFacts->setTextFormat(Qt::PlainText);
    mpFacts->setWordWrap(true);
    auto *choices = new QGridLayout;
    choices->setSpacing(Gap);
    choices->setColumnStretch(1, 1);
    connect(mpUse, qOverload<int>(&QComboBox::activated), this, &PictureUploadOptions::changeUse); // first
    const std::pair<QLabel *, QComboBox *> rows[] = {
        {mpUseCaption, mpUse}, {mpShapeCaption, mpShape}, {mpFitCaption, mpFit}};
    for (const auto &[caption, box] : rows) {
        keepNarrow(*box);
        caption->setBuddy(box);
        const int row = choices->rowCount();
        choices->addWidget(caption, row, 0);
        choices->addWidget(box, row, 1);
        connect(box, qOverload<int>(&QComboBox::activated), this, &PictureUploadOptions::sigChanged);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Gap);
    layout->addLayout(choices);
    layout->addWidget(mpCut);
    layout->addWidget(mpPreviewCaption);
    layout->addWidget(mpPreview);
    layout->addWidget(mpFacts);
    layout->addStretch();
    connect(mpCut, &QCheckBox::toggled, this, &PictureUploadOptions::sigChanged);
    retranslate();
    showControls();
}

void PictureUploadOptions::setTarget(const PictureUploadTarget &target)
{
    const bool isOther = target.key != mTarget.key;
    mTarget = target;
    fillShapes();
    if (isOther)
        mpShape->setCurrentIndex(0);
}

void PictureUploadOptions::setKind(Kind kind)
{
    mKind = kind;
    mpUse->setCurrentIndex(AsPicture);
    fillFits();
    showControls();
}

void PictureUploadOptions::showFace(const vorlinmodel::KeyFace &face, const QString &facts)
{
    const QSize size = targetSize();
    mpPreviewCaption->setText(tr("On the key, %1 x %2 pixels:").arg(size.width()).arg(size.height()));
    mpPreview->setFace(face, size);
    mpFacts->setText(facts);
}

bool PictureUploadOptions::usesVideo() const
{
    return mKind == Kind::Video || (mKind == Kind::Animation && mpUse->currentIndex() == AsVideo);
}

bool PictureUploadOptions::isForKey() const
{
    return mpShape->currentData().toInt() == KeyShape;
}

QSize PictureUploadOptions::targetSize() const
{
    return isForKey() ? mTarget.size : singleSize();
}

VideoFit PictureUploadOptions::fit() const
{
    return static_cast<VideoFit>(mpFit->currentData().toInt());
}

vorlinmodel::VideoSettings PictureUploadOptions::settings() const
{
    vorlinmodel::VideoSettings settings;
    settings.size = targetSize();
    settings.fit = fit();
    settings.mayCut = mpCut->isChecked();
    return settings;
}

void PictureUploadOptions::changeUse()
{
    fillFits();
    showControls();
}

void PictureUploadOptions::fillShapes()
{
    const int before = mpShape->count() > 0 ? mpShape->currentData().toInt() : int(KeyShape);
    const auto add = [this](const QString &name, QSize size, Shape shape) {
        const QString item =
            tr("%1, %2 x %3 pixels").arg(name, QString::number(size.width()), QString::number(size.height()));
        mpShape->addItem(item, shape);
        mpShape->setItemData(mpShape->count() - 1, item, Qt::ToolTipRole);
    };
    mpShape->clear();
    if (mTarget.isSelected())
        add(mTarget.name, mTarget.size, KeyShape);
    add(tr("One key"), singleSize(), SingleShape);
    mpShape->setCurrentIndex(qMax(0, mpShape->findData(before)));
}

void PictureUploadOptions::fillFits()
{
    const VideoFit before = mpFit->count() > 0 ? fit() : VideoFit::Cover;
    mpFit->clear();
    mpFit->addItem(tr("Fill the key"), int(VideoFit::Cover));
    mpFit->addItem(usesVideo() ? tr("Show the whole video") : tr("Show the whole picture"),
                   int(VideoFit::Contain));
    if (usesVideo())
        mpFit->addItem(tr("Stretch to the key"), int(VideoFit::Stretch));
    mpFit->setCurrentIndex(qMax(0, mpFit->findData(int(before))));
}

void PictureUploadOptions::showControls()
{
    const bool isAnimation = mKind == Kind::Animation;
    mpUseCaption->setVisible(isAnimation);
    mpUse->setVisible(isAnimation);
    mpCut->setVisible(usesVideo());
    mpFit->setEnabled(mKind != Kind::Nothing);
}

void PictureUploadOptions::retranslate()
{
    const int use = qMax(0, mpUse->currentIndex());
    mpUse->clear();
    mpUse->addItems({tr("Picture"), tr("Video")});
    mpUse->setCurrentIndex(use);
    mpUseCaption->setText(tr("Use as:"));
    mpShapeCaption->setText(tr("Shape:"));
    mpFitCaption->setText(tr("Fit:"));
    mpCut->setText(tr("Leave out what does not fit"));
    fillShapes();
    fillFits();
}
