#include "contenteditor.h"

#include "attributestyle.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "combinationfield.h"
#include "editorcontext.h"
#include "limitedtext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "pictureedits.h"
#include "ui_common/filedialog.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int Choose = 77; // rows of the text table
constexpr int Document = 78;
constexpr int TextContent = 79;
constexpr int KeyCombinationText = 81;
constexpr int VideoText = 82;
constexpr int Open = 83;
constexpr int AllFiles = 84;
constexpr int Video = 87;

constexpr int FirstMedia = 5; // done by the panel itself: playing, volume, tracks, pages, brightness
constexpr int LastMedia = 14;

bool isResource(const QString &path)
{
    return path.startsWith(QLatin1Char(':'));
}

bool hasFunction(const KeyEdits &edits, const vorlinmodel::key_id_t &key, int fid)
{
    const auto record = edits.store().getKeyAttribute(key);
    return record && record->mFId == fid;
}

} // namespace

ContentEditor::ContentEditor(EditorContext &context, QWidget *parent)
    : QStackedWidget(parent)
    , mContext(context)
    , mpExplanation(new QLabel(this))
    , mpPath(addText("path", false))
    , mpOpen(new QPushButton(this))
    , mpAddress(addText("webAddress", false))
    , mpText(addText("outputText", true))
    , mpKeys(new CombinationField(this))
    , mpVideoPage(new QWidget(this))
    , mpVideoLabel(new QLabel(mpVideoPage))
    , mpVideo(new QLineEdit(mpVideoPage))
    , mpChooseVideo(new QPushButton(mpVideoPage))
{
    mpExplanation->setObjectName(QStringLiteral("explanation"));
    mpExplanation->setTextFormat(Qt::PlainText);
    mpExplanation->setWordWrap(true);
    mpExplanation->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    addWidget(mpExplanation);
    addWidget(mpKeys);
    mpOpen->setObjectName(QStringLiteral("choosePath"));
    mpPath->addBeside(mpOpen);
    mpAddress->setPlaceholder(QStringLiteral("https://"));
    addVideo();
    connect(mpOpen, &QPushButton::clicked, this, &ContentEditor::choosePath);
    connect(mpKeys, &CombinationField::sigPicked, this, &ContentEditor::onKeys);
    retranslate();
}

LimitedText *ContentEditor::addText(const char *name, bool isOutput)
{
    const auto form = isOutput ? LimitedText::Form::Paragraph : LimitedText::Form::Line;
    const auto encoding = isOutput ? TextLimit::Encoding::TextOutput : TextLimit::Encoding::Gbk;
    auto *page = new QWidget(this); // keeps a line at the top
    auto *text = new LimitedText(form, encoding, QString::fromLatin1(name), page);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text, isOutput ? 1 : 0);
    if (!isOutput)
        layout->addStretch(1);
    addWidget(page);
    connect(text, &LimitedText::sigEdited, this, &ContentEditor::onTyped);
    return text;
}

void ContentEditor::addVideo()
{
    mpVideo->setObjectName(QStringLiteral("video"));
    mpVideo->setReadOnly(true);
    mpChooseVideo->setObjectName(QStringLiteral("chooseVideo"));
    mpVideoLabel->setBuddy(mpChooseVideo);
    auto *layout = new QGridLayout(mpVideoPage);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::Gap);
    layout->addWidget(mpVideoLabel, 0, 0, 1, 2);
    layout->addWidget(mpVideo, 1, 0);
    layout->addWidget(mpChooseVideo, 1, 1);
    layout->setRowStretch(2, 1);
    addWidget(mpVideoPage);
    connect(mpChooseVideo, &QPushButton::clicked, this, &ContentEditor::chooseVideo);
}

void ContentEditor::showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record,
                            bool anew)
{
    mKey = key;
    mFid = record.mFId;
    mpExplanation->setText(explanation(mFid));
    const QString &content = record.strAppOrUrl;
    // Only the field that is seen has the content: another function reads it in another way.
    mpPath->showStored(mFid == vorlinmodel::OPEN_FILE_FID ? content : QString(), anew);
    mpAddress->showStored(mFid == vorlinmodel::OPEN_WEB_FID ? content : QString(), anew);
    mpText->showStored(mFid == vorlinmodel::TEXT_OUTPUT_FID ? content : QString(), anew);
    mpKeys->showStored(mFid == vorlinmodel::KEY_COMBINATION_FID ? content : QString(), anew);
    // The field of the video holds the icon of the function until a video is set.
    const QString video = isResource(record.defaultImage) ? QString() : record.defaultImage;
    if (mpVideo->text() != QDir::toNativeSeparators(video)) {
        mpVideo->setText(QDir::toNativeSeparators(video));
        mpVideo->setToolTip(mpVideo->text());
    }
    setCurrentWidget(pageOf(mFid));
}

bool ContentEditor::isUnsent() const
{
    return mpPath->isUnsent() || mpAddress->isUnsent() || mpText->isUnsent();
}

void ContentEditor::commit()
{
    mpKeys->commit();
}

void ContentEditor::retranslate()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    mpExplanation->setText(explanation(mFid));
    mpPath->setLabel(texts.Text(Document));
    mpOpen->setText(texts.Text(Open));
    mpOpen->setAccessibleName(tr("Choose the file that the key opens"));
    mpAddress->setLabel(tr("Web address:"));
    mpText->setLabel(texts.Text(TextContent));
    for (LimitedText *text : {mpPath, mpAddress, mpText})
        text->retranslate();
    mpKeys->setLabel(texts.Text(KeyCombinationText));
    mpKeys->retranslate();
    mpVideoLabel->setText(texts.Text(VideoText).trimmed());
    mpVideo->setPlaceholderText(tr("None chosen"));
    mpVideo->setAccessibleName(tr("Video of the key"));
    mpChooseVideo->setText(texts.Text(Choose));
    mpChooseVideo->setAccessibleName(tr("Choose the video that the key plays"));
}

QWidget *ContentEditor::pageOf(int fid) const
{
    switch (fid) {
    case vorlinmodel::OPEN_FILE_FID:
        return mpPath->parentWidget();
    case vorlinmodel::OPEN_WEB_FID:
        return mpAddress->parentWidget();
    case vorlinmodel::TEXT_OUTPUT_FID:
        return mpText->parentWidget();
    case vorlinmodel::KEY_COMBINATION_FID:
        return mpKeys;
    case vorlinmodel::VIDEO_FID:
        return mpVideoPage;
    default:
        return mpExplanation;
    }
}

void ContentEditor::choosePath()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    // Outside Windows, programs have no dot in their names.
    const QString filter = texts.Text(AllFiles).replace(QStringLiteral("*.*"), QStringLiteral("*"));
    const vorlinmodel::key_id_t key = mKey; // the panel may bring another one into view meanwhile
    const QString path = FileDialog::openFile(this, texts.Text(Open), {}, filter);
    if (!path.isEmpty())
        setPath(key, QDir::toNativeSeparators(path));
}

/// A path that cannot be carried stands in the field like a typed one: marked, and not stored.
void ContentEditor::setPath(const vorlinmodel::key_id_t &key, const QString &path)
{
    constexpr int fid = vorlinmodel::OPEN_FILE_FID;
    KeyEdits &edits = mContext.edits;
    if (!hasFunction(edits, key, fid))
        return;
    if (TextLimit::check(path, TextLimit::Encoding::Gbk).fits()) {
        edits.change(tr("Path"), {key}, [&] {
            edits.store().setUrlOrPath(key, path);
            edits.send(key, fid, *contentAttribute(fid));
        });
    }
    if (key == mKey)
        mpPath->type(path);
}

void ContentEditor::chooseVideo()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    const QString filter = QStringLiteral("%1 (%2)").arg(texts.Text(Video), PictureEdits::videoPattern());
    const vorlinmodel::key_id_t key = mKey; // the panel may bring another one into view meanwhile
    const QString path = FileDialog::openFile(this, texts.Text(VideoText).trimmed(), {}, filter);
    if (!path.isEmpty())
        mContext.videos.place(key, path);
}

void ContentEditor::onTyped(const QString &text)
{
    const auto attribute = contentAttribute(mFid);
    if (!attribute)
        return;
    const QString step = mFid == vorlinmodel::OPEN_FILE_FID  ? tr("Path")
                         : mFid == vorlinmodel::OPEN_WEB_FID ? tr("Web address")
                                                             : tr("Text");
    mContext.edits.changeAtRest(step, mKey, *attribute,
                                [&] { mContext.edits.store().setUrlOrPath(mKey, text); });
}

void ContentEditor::onKeys(const QStringList &names)
{
    KeyEdits &edits = mContext.edits;
    if (!hasFunction(edits, mKey, mFid)) // the key was cleared while they were typed
        return;
    edits.change(tr("Key combination"), {mKey}, [&] {
        edits.store().setKeyCombination(mKey, names);
        edits.send(mKey, mFid, *contentAttribute(mFid));
    });
}

QString ContentEditor::explanation(int fid) const
{
    switch (fid) {
    case vorlinmodel::HOME_PAGE_FID:
        return tr("Opens the home page of the browser on this computer.");
    case vorlinmodel::MULTIPLE_ACTIONS_FID:
        return tr(
            "Runs several actions one after the other. Double click the key, or press Enter on it, to edit "
            "them.");
    case vorlinmodel::CHILDREN_PAGE_FID:
        return tr(
            "Shows a page of its own with further keys. Double click the key, or press Enter on it, to open "
            "that page.");
    case vorlinmodel::RETURN_MAIN_FID:
        return tr("Leads from a child page back to the main page.");
    default:
        break;
    }
    if (fid >= FirstMedia && fid <= LastMedia)
        return tr("The panel does this by itself. There is nothing more to set.");
    return fid == 0 ? QString() : tr("This program does not know the function %1 of the key.").arg(fid);
}
