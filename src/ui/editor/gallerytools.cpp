#include "gallerytools.h"

#include "base/language.h"
#include "galleryicons.h"
#include "ui_common/choicebox.h"
#include "ui_common/searchfield.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int CaptionText = 4;
constexpr int TypeText = 85;
constexpr int ImageText = 86;
constexpr int VideoText = 87;
constexpr int ButtonSide = 26; // pixels

constexpr char ToolStyle[] =
    "QToolButton {background-color: transparent;border: 1px solid transparent;border-radius: 4px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
    "QToolButton:pressed {background-color: rgb(0, 160, 255);}"
    "QLineEdit, QComboBox {font-size: 13px;padding: 2px 4px;}"
    "QLineEdit QToolButton {border: none;}";

} // namespace

GalleryTools::GalleryTools(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mLanguage(language)
    , mpCaption(new QLabel(this))
    , mpSearch(new QLineEdit(this))
    , mpTypeCaption(new QLabel(this))
    , mpType(new ChoiceBox(this))
    , mpCount(new QLabel(this))
{
    setStyleSheet(QString::fromLatin1(ToolStyle));
    mpSearch->setObjectName(QStringLiteral("gallerySearch"));
    makeSearchField(*mpSearch);
    mpType->setObjectName(QStringLiteral("galleryType"));
    mpCount->setObjectName(QStringLiteral("galleryCount"));
    for (int i = 0; i < 3; ++i)
        mpType->addItem(QString()); // as in Show
    auto *top = new QHBoxLayout;
    top->setSpacing(1);
    top->addWidget(mpCaption, 1);
    for (const char *name : {"addPictures", "gallerySelectAll", "galleryDelete"}) {
        auto *button = new QToolButton(this);
        button->setObjectName(QLatin1String(name));
        button->setFixedSize(ButtonSide, ButtonSide);
        button->setIconSize({20, 20});
        top->addWidget(button);
        mButtons.append(button);
    }
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(top);
    layout->addWidget(mpSearch);
    layout->addWidget(makeTypeRow());
    connect(mpSearch, &QLineEdit::textChanged, this, &GalleryTools::sigFilter);
    connect(mpType, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &GalleryTools::sigFilter);
}

QWidget *GalleryTools::makeTypeRow()
{
    auto *row = new QWidget(this);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(mpTypeCaption);
    layout->addWidget(mpType);
    layout->addStretch();
    layout->addWidget(mpCount);
    return row;
}

void GalleryTools::setActions(QAction *add, QAction *selectAll, QAction *remove)
{
    add->setIcon(GalleryIcons::tool(GalleryIcons::Tool::Add));
    selectAll->setIcon(GalleryIcons::tool(GalleryIcons::Tool::SelectAll));
    remove->setIcon(GalleryIcons::tool(GalleryIcons::Tool::Delete));
    mButtons[0]->setDefaultAction(add);
    mButtons[1]->setDefaultAction(selectAll);
    mButtons[2]->setDefaultAction(remove);
}

QString GalleryTools::text() const
{
    return mpSearch->text().trimmed();
}

GalleryModel::Show GalleryTools::kind() const
{
    return static_cast<GalleryModel::Show>(qMax(0, mpType->currentIndex()));
}

void GalleryTools::clearFilter()
{
    mpSearch->clear();
    mpType->setCurrentIndex(0);
}

void GalleryTools::setCount(int shown, int total)
{
    const QLocale locale;
    mpCount->setText(shown == total
                         ? locale.toString(total)
                         : QStringLiteral("%1 / %2").arg(locale.toString(shown), locale.toString(total)));
    mpCount->setVisible(total > 0);
}

void GalleryTools::retranslate()
{
    mpCaption->setText(mLanguage.Text(CaptionText));
    mpSearch->setPlaceholderText(tr("Search"));
    mpSearch->setAccessibleName(mpSearch->placeholderText());
    mpTypeCaption->setText(mLanguage.Text(TypeText));
    mpType->setAccessibleName(mLanguage.Text(TypeText).trimmed());
    mpType->setItemText(0, tr("All"));
    mpType->setItemText(1, mLanguage.Text(ImageText));
    mpType->setItemText(2, mLanguage.Text(VideoText));
}
