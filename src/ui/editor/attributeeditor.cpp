#include "attributeeditor.h"

#include "attributestyle.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "contenteditor.h"
#include "editorcontext.h"
#include "functionlist.h"
#include "modeeditor.h"
#include "model/ifunctionmanager.h"
#include "picturepicker.h"
#include "titleeditor.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

using vorlinmodel::key_id_t;

namespace {

constexpr int DropHint = 67; // row of the text table

QLabel *label(const char *name, const char *style, QWidget *parent)
{
    auto *result = new QLabel(parent);
    result->setObjectName(QString::fromLatin1(name));
    result->setTextFormat(Qt::PlainText);
    result->setStyleSheet(QString::fromLatin1(style));
    return result;
}

} // namespace

AttributeEditor::AttributeEditor(EditorContext &context, QWidget *parent)
    : QFrame(parent)
    , mContext(context)
    , mpHeader(label("attributeHeader", AttributeStyle::Header, this))
    , mpNotice(label("attributeNotice", AttributeStyle::Notice, this))
    , mpPages(new QStackedWidget(this))
    , mpHint(label("attributeHint", AttributeStyle::Aside, mpPages))
{
    setObjectName(QStringLiteral("attributeEditor"));
    setStyleSheet(QString::fromLatin1(AttributeStyle::Page) + QString::fromLatin1(Style::Fields) +
                  QString::fromLatin1(Style::Button) + QString::fromLatin1(AttributeStyle::Parts));
}

bool AttributeEditor::setup()
{
    if (mpFields) // built already
        return true;
    mpHint->setAlignment(Qt::AlignCenter);
    mpHint->setWordWrap(true);
    mpPages->addWidget(mpHint);
    mpFields = makeFields();
    mpPages->addWidget(mpFields);
    mpNotice->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // never widens the window
    auto *top = new QHBoxLayout;
    top->setSpacing(AttributeStyle::ColumnGap);
    top->addWidget(mpHeader);
    top->addWidget(mpNotice, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 6);
    layout->setSpacing(AttributeStyle::RowGap);
    layout->addLayout(top);
    layout->addWidget(mpPages, 1);
    connect(&mContext.edits, &KeyEdits::sigKeysChanged, this, &AttributeEditor::onKeysChanged);
    connect(&mContext.edits, &KeyEdits::sigCommit, mpContent, &ContentEditor::commit);
    retranslate();
    return true;
}

QWidget *AttributeEditor::makeFields()
{
    auto *fields = new QWidget(mpPages);
    mpPicture = new PicturePicker(mContext, fields);
    mpTitle = new TitleEditor(mContext, fields);
    mpMode = new ModeEditor(mContext, fields);
    mpContent = new ContentEditor(mContext, fields);
    auto *right = new QVBoxLayout;
    right->setSpacing(AttributeStyle::RowGap);
    right->addWidget(mpMode);
    right->addWidget(mpContent, 1);
    auto *columns = new QHBoxLayout(fields);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(AttributeStyle::ColumnGap);
    columns->addWidget(mpPicture, 3);
    columns->addWidget(mpTitle, 5);
    columns->addLayout(right, 6);
    return fields;
}

void AttributeEditor::showKey(const key_id_t &key)
{
    if (!mpFields)
        return;
    if (key != mKey)
        mpContent->commit(); // may be an edit, in whose course we are called
    if (key != mKey) {
        mpNotice->clear();
        noteUnsent();
        mStep = -1;
        mKey = key;
        mFid = 0;
    }
    refresh();
}

/// Parts that already show the value leave their fields alone, so that this may come with every letter typed.
void AttributeEditor::refresh()
{
    if (!mpFields)
        return;
    const auto record = mContext.edits.store().getKeyAttribute(mKey);
    const int fid = record ? record->mFId : 0;
    const bool anew = fid != mFid; // showKey() has made it 0 for another key
    if (anew)
        noteUnsent();
    mFid = fid;
    showHeader(fid);
    mpPages->setCurrentWidget(fid == 0 ? mpHint : mpFields);
    if (fid == 0)
        return;
    mpPicture->showKey(mKey, *record);
    mpTitle->showKey(mKey, *record, anew);
    mpMode->showKey(mKey, *record);
    mpContent->showKey(mKey, *record, anew);
}

void AttributeEditor::focusTitle()
{
    if (mFid != 0)
        mpTitle->focusTitle();
}

void AttributeEditor::setCompact(bool compact)
{
    mpPages->setVisible(!compact);
    setMaximumHeight(compact ? sizeHint().height() : QWIDGETSIZE_MAX);
}

void AttributeEditor::retranslate()
{
    if (!mpFields)
        return;
    mpHint->setText(mContext.framework.languageManager()->Text(DropHint));
    mpNotice->clear(); // it stands in the language before
    mpPicture->retranslate();
    mpTitle->retranslate();
    mpMode->retranslate();
    mpContent->retranslate();
    showHeader(mFid);
}

void AttributeEditor::onDataChangeHandler(const key_id_t &key_id_, int, bool)
{
    showKey(key_id_);
}

void AttributeEditor::onMultiActionItemClicked(const key_id_t &key_id_, int fid_, int step)
{
    showKey(key_id_);
    mStep = step;
    mStepFid = fid_;
    showHeader(mFid);
}

void AttributeEditor::onKeysChanged(const QVector<key_id_t> &keys)
{
    if (keys.contains(mKey))
        refresh();
}

/// The key, or its function, is left while a field has a text that was never sent.
void AttributeEditor::noteUnsent()
{
    if (mFid == 0)
        return;
    const bool title = mpTitle->isUnsent();
    if (title || mpContent->isUnsent()) {
        mpNotice->setText(title ? tr("Key %1 keeps its last title that could be sent.").arg(mKey.kid)
                                : tr("Key %1 keeps its last content that could be sent.").arg(mKey.kid));
        mpNotice->setToolTip(mpNotice->text());
    }
}

void AttributeEditor::showHeader(int fid)
{
    if (mStep >= 0)
        mpHeader->setText(tr("Step %1: %2").arg(mStep + 1).arg(functionName(mContext, mStepFid)));
    else if (fid != 0)
        mpHeader->setText(tr("Key %1: %2").arg(mKey.kid).arg(functionName(mContext, fid)));
    else
        mpHeader->setText(mKey.kid > 0 ? tr("Key %1").arg(mKey.kid) : QString());
}
