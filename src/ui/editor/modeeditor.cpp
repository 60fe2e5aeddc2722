#include "modeeditor.h"

#include "attributestyle.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "editorcontext.h"
#include "model/ifunctionmanager.h"
#include "ui_common/choicebox.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

using vorlinmodel::AttributeId;

namespace {

constexpr int EffectsText = 54; // rows of the text table
constexpr int FirstEffect = 55; // none, zooming, inversion, marquee, in the order of their values
constexpr int Effects = 4;
constexpr int ModeText = 59;
constexpr int FirstMode = 60; // no self locking, self locking
constexpr int Modes = 2;

QComboBox *comboBox(const char *name, int count, QWidget *parent)
{
    auto *box = new ChoiceBox(parent);
    box->setObjectName(QString::fromLatin1(name));
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    for (int i = 0; i < count; ++i)
        box->addItem(QString());
    return box;
}

/// A value that is none of the known ones looks like none at all, as the panel draws it.
void showValue(QComboBox *box, int value)
{
    box->setCurrentIndex(value >= 0 && value < box->count() ? value : 0);
}

} // namespace

ModeEditor::ModeEditor(EditorContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpModeLabel(new QLabel(this))
    , mpMode(comboBox("displayMode", Modes, this))
    , mpEffectLabel(new QLabel(this))
    , mpEffect(comboBox("imageEffect", Effects, this))
{
    mpModeLabel->setBuddy(mpMode);
    mpEffectLabel->setBuddy(mpEffect);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::RowGap);
    layout->addWidget(mpModeLabel, 0, 0);
    layout->addWidget(mpMode, 0, 1);
    layout->addWidget(mpEffectLabel, 1, 0);
    layout->addWidget(mpEffect, 1, 1);
    layout->setColumnStretch(1, 1);
    connect(mpMode, qOverload<int>(&QComboBox::activated), this, &ModeEditor::onMode);
    connect(mpEffect, qOverload<int>(&QComboBox::activated), this, &ModeEditor::onEffect);
    retranslate();
}

void ModeEditor::showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record)
{
    mKey = key;
    showValue(mpMode, record.nDisplaymode);
    showValue(mpEffect, record.imageEffects);
}

void ModeEditor::retranslate()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    mpModeLabel->setText(texts.Text(ModeText).trimmed());
    mpEffectLabel->setText(texts.Text(EffectsText).trimmed());
    for (int mode = 0; mode < Modes; ++mode)
        mpMode->setItemText(mode, texts.Text(FirstMode + mode));
    for (int effect = 0; effect < Effects; ++effect)
        mpEffect->setItemText(effect, texts.Text(FirstEffect + effect));
    mpMode->setAccessibleName(tr("Display mode"));
    mpEffect->setAccessibleName(tr("Image effect"));
}

void ModeEditor::onMode(int mode)
{
    KeyEdits &edits = mContext.edits;
    const auto record = edits.store().getKeyAttribute(mKey);
    if (!record || record->nDisplaymode == mode)
        return;
    edits.change(tr("Display mode"), {mKey}, [&] {
        edits.store().setDisplayMode(mKey, mode);
        edits.send(mKey, record->mFId, AttributeId::DisplayMode);
    });
}

void ModeEditor::onEffect(int effect)
{
    KeyEdits &edits = mContext.edits;
    const auto record = edits.store().getKeyAttribute(mKey);
    if (!record || record->imageEffects == effect)
        return;
    edits.change(tr("Image effect"), {mKey}, [&] {
        edits.store().setImageEffects(mKey, effect);
        edits.send(mKey, record->mFId, AttributeId::ImageEffects);
    });
}
