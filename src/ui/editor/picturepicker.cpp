#include "picturepicker.h"

#include "attributestyle.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "editorcontext.h"
#include "keypreview.h"
#include "pictureedits.h"
#include "ui_common/filedialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int SelectPicture = 15; // rows of the text table
constexpr int DragHint = 53;
constexpr int Choose = 77;
constexpr int Reset = 80;
constexpr int Picture = 86;

} // namespace

PicturePicker::PicturePicker(EditorContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpPreview(new KeyPreview(context, this))
    , mpHint(new QLabel(this))
    , mpChoose(new QPushButton(this))
    , mpReset(new QPushButton(this))
{
    mpPreview->setObjectName(QStringLiteral("keyPreview"));
    mpHint->setObjectName(QStringLiteral("pictureHint"));
    mpChoose->setObjectName(QStringLiteral("choosePicture"));
    mpReset->setObjectName(QStringLiteral("resetPicture"));
    mpHint->setTextFormat(Qt::PlainText);
    mpHint->setWordWrap(true);
    mpHint->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    mpHint->setStyleSheet(QString::fromLatin1(AttributeStyle::Aside));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::RowGap);
    layout->addWidget(mpPreview, 0, 0, 1, 2);
    layout->addWidget(mpHint, 1, 0, 1, 2);
    layout->addWidget(mpChoose, 2, 0);
    layout->addWidget(mpReset, 2, 1);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    connect(mpChoose, &QPushButton::clicked, this, &PicturePicker::choose);
    connect(mpReset, &QPushButton::clicked, this, [this] { PictureEdits::resetPicture(mContext, mKey); });
    connect(mpPreview, &KeyPreview::sigPictureDropped, this,
            [this](const QString &path) { mContext.pictures.place(mKey, path); });
    connect(
        mpPreview, &KeyPreview::sigVideoDropped, this,
        [this](const QString &path, const QString &picture) { mContext.videos.place(mKey, path, picture); });
    retranslate();
}

void PicturePicker::showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record)
{
    mKey = key;
    mpPreview->showKey(key);
    mpReset->setEnabled(PictureEdits::canReset(record));
}

void PicturePicker::retranslate()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    mpHint->setText(texts.Text(DragHint));
    mpChoose->setText(texts.Text(Choose));
    mpReset->setText(texts.Text(Reset));
    mpChoose->setAccessibleName(tr("Choose the picture of the key"));
    mpChoose->setToolTip(mpChoose->accessibleName());
    mpReset->setAccessibleName(tr("Show the icon of the function again"));
    mpReset->setToolTip(mpReset->accessibleName());
    mpPreview->setAccessibleName(tr("What the key shows"));
    mpPreview->setToolTip(texts.Text(DragHint));
}

void PicturePicker::choose()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    const QString filter = QStringLiteral("%1 (%2)").arg(texts.Text(Picture), PictureEdits::picturePattern());
    const vorlinmodel::key_id_t key = mKey; // the panel may bring another one into view meanwhile
    const QString path = FileDialog::openFile(this, texts.Text(SelectPicture), {}, filter);
    if (!path.isEmpty())
        mContext.pictures.place(key, path);
}
