#include "titleeditor.h"

#include "attributestyle.h"
#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "colourbutton.h"
#include "editorcontext.h"
#include "limitedtext.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSlider>
#include <QSpinBox>

using vorlinmodel::AttributeId;

namespace {

constexpr int SmallestSize = 6; // points
constexpr int LargestSize = 48;
constexpr int DefaultSize = 16;  // what a panel draws for a size of 0
constexpr int LargestByte = 255; // sizes travel in one byte

constexpr int LargestTitle = 150; // pixels; a key has room for a few lines only

constexpr int TitleText = 62;  // rows of the text table
constexpr int BottomText = 63; // followed by center and top, in the order of their values
constexpr int Alignments = 3;

int shownSize(int points)
{
    return points > 0 ? qMin(points, LargestByte) : DefaultSize;
}

} // namespace

TitleEditor::TitleEditor(EditorContext &context, QWidget *parent)
    : QWidget(parent)
    , mContext(context)
    , mpTitle(new LimitedText(LimitedText::Form::Paragraph, TextLimit::Encoding::Gbk, QStringLiteral("title"),
                              this))
    , mpSizeLabel(new QLabel(this))
    , mpSlider(new QSlider(Qt::Horizontal, this))
    , mpSpin(new QSpinBox(this))
    , mpLookLabel(new QLabel(this))
    , mpColour(new ColourButton(this))
    , mpAlignment(new QButtonGroup(this))
{
    mpTitle->setMaximumHeight(LargestTitle);
    mpColour->setObjectName(QStringLiteral("titleColour"));
    mpLookLabel->setBuddy(mpColour);
    buildSize();
    buildAlignment();
    buildLayout();
    connect(mpTitle, &LimitedText::sigEdited, this, &TitleEditor::onTitle);
    connect(mpColour, &ColourButton::sigPicked, this, &TitleEditor::onColour);
    retranslate();
}

void TitleEditor::buildSize()
{
    mpSlider->setObjectName(QStringLiteral("titleSizeSlider"));
    mpSlider->setRange(SmallestSize, LargestSize);
    mpSpin->setObjectName(QStringLiteral("titleSize"));
    mpSpin->setRange(SmallestSize, LargestSize);
    mpSpin->setButtonSymbols(QAbstractSpinBox::NoButtons); // the slider beside it does their work
    mpSizeLabel->setBuddy(mpSpin);
    connect(mpSlider, &QSlider::valueChanged, this, &TitleEditor::onSize);
    connect(mpSpin, qOverload<int>(&QSpinBox::valueChanged), this, &TitleEditor::onSize);
}

void TitleEditor::buildAlignment()
{
    for (int alignment = 0; alignment < Alignments; ++alignment) {
        auto *button = new QPushButton(this);
        button->setObjectName(QStringLiteral("alignment%1").arg(alignment));
        button->setProperty("segment", true);
        button->setCheckable(true);
        mpAlignment->addButton(button, alignment);
    }
    connect(mpAlignment, &QButtonGroup::idClicked, this, &TitleEditor::onAlignment);
}

void TitleEditor::buildLayout()
{
    auto *size = new QHBoxLayout;
    size->addWidget(mpSizeLabel);
    size->addWidget(mpSlider, 1);
    size->addWidget(mpSpin);
    auto *look = new QHBoxLayout;
    look->addWidget(mpLookLabel);
    look->addWidget(mpColour, 1);
    auto *alignment = new QHBoxLayout;
    alignment->setSpacing(2);
    for (QAbstractButton *button : mpAlignment->buttons())
        alignment->addWidget(button, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::RowGap);
    layout->addWidget(mpTitle, 100);
    layout->addLayout(size);
    layout->addLayout(look);
    layout->addLayout(alignment);
    layout->addStretch(1);
}

void TitleEditor::showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record,
                          bool anew)
{
    if (anew)
        mpColour->cancel(); // it was to be the colour of another key
    mKey = key;
    mpTitle->showStored(record.strTitle, anew);
    showSize(shownSize(record.titleFontSize));
    mpColour->setColour(record.titleColour);
    const int alignment = record.titleAlignment;
    // The panel draws an alignment that it does not know at the bottom.
    QAbstractButton *button = mpAlignment->button(alignment);
    (button ? button : mpAlignment->button(vorlinmodel::AlignBottom))->setChecked(true);
}

bool TitleEditor::isUnsent() const
{
    return mpTitle->isUnsent();
}

void TitleEditor::focusTitle()
{
    mpTitle->focusField();
}

void TitleEditor::retranslate()
{
    const vorlindesk::LanguageManager &texts = *mContext.framework.languageManager();
    mpTitle->setLabel(texts.Text(TitleText));
    mpTitle->retranslate();
    mpSizeLabel->setText(tr("Size:"));
    mpSlider->setAccessibleName(tr("Size of the title"));
    mpSpin->setAccessibleName(tr("Size of the title, in points"));
    mpSpin->setToolTip(tr("Points"));
    mpLookLabel->setText(tr("Colour:"));
    mpColour->retranslate();
    for (int alignment = 0; alignment < Alignments; ++alignment) {
        QAbstractButton *button = mpAlignment->button(alignment);
        button->setText(texts.Text(BottomText + alignment));
        button->setAccessibleName(tr("Title alignment: %1").arg(button->text()));
        button->setToolTip(button->accessibleName());
    }
}

/// A size from elsewhere widens the range of the box as long as it stands. What the person is typing into the
/// box stays when the value is the same: setting it again would undo the typing.
void TitleEditor::showSize(int points)
{
    const QScopedValueRollback<bool> showing(mShowing, true);
    const int smallest = qMin(points, SmallestSize);
    const int largest = qMax(points, LargestSize);
    if (mpSpin->minimum() != smallest || mpSpin->maximum() != largest)
        mpSpin->setRange(smallest, largest);
    if (mpSpin->value() != points)
        mpSpin->setValue(points);
    mpSlider->setValue(points);
}

void TitleEditor::onTitle(const QString &title)
{
    mContext.edits.changeAtRest(tr("Title"), mKey, AttributeId::Title,
                                [&] { mContext.edits.store().setTitle(mKey, title); });
}

void TitleEditor::onSize(int points)
{
    if (mShowing)
        return;
    mContext.edits.changeAtRest(tr("Title size"), mKey, AttributeId::TitleFontSize,
                                [&] { mContext.edits.store().setTitleFontSize(mKey, points); });
}

void TitleEditor::onColour(const QColor &colour)
{
    KeyEdits &edits = mContext.edits;
    const auto record = edits.store().getKeyAttribute(mKey);
    if (!record)
        return;
    edits.change(tr("Title colour"), {mKey}, [&] {
        edits.store().setTitleFontColor(mKey, colour);
        edits.send(mKey, record->mFId, AttributeId::TitleColour);
    });
}

void TitleEditor::onAlignment(int alignment)
{
    KeyEdits &edits = mContext.edits;
    const auto record = edits.store().getKeyAttribute(mKey);
    if (!record || record->titleAlignment == alignment)
        return;
    edits.change(tr("Title alignment"), {mKey}, [&] {
        edits.store().setTitleAlignment(mKey, alignment);
        edits.send(mKey, record->mFId, AttributeId::TitleAlignment);
    });
}
