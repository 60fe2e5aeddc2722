#include "pagenavigation.h"

#include "base/language.h"
#include "model/keyid.h"
#include "ui_common/style.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using vorlindesk::TextId;

namespace {

constexpr char RowStyle[] =
    "QPushButton {background-color: rgb(70, 70, 70);color: white;border: 1px solid rgb(108, 108, 108);"
    "border-radius: 4px;padding: 4px 10px;}"
    "QPushButton:hover, QPushButton:focus {border-color: rgb(0, 160, 255);}"
    "QPushButton:pressed {background-color: rgb(0, 160, 255);}"
    "QPushButton:disabled {color: rgb(108, 108, 108);border-color: rgb(80, 80, 80);}"
    "QToolButton {background-color: transparent;color: rgb(190, 190, 190);border: 1px solid transparent;"
    "border-radius: 4px;padding: 0px;font-size: 12px;}"
    "QToolButton:hover, QToolButton:focus {border-color: rgb(0, 160, 255);}"
    "QToolButton:checked {background-color: rgb(0, 160, 255);color: white;}"
    "QLabel {color: white;background-color: transparent;}";
constexpr int NumberHeight = 26;
constexpr int SmallestNumberWidth = 18;
constexpr int LargestNumberWidth = 30;

} // namespace

PageNavigation::PageNavigation(const vorlindesk::LanguageManager &language, QWidget *parent)
    : QWidget(parent)
    , mLanguage(language)
    , mpPrevPage(new QPushButton(this))
    , mpPage(new QLabel(this))
    , mpNextPage(new QPushButton(this))
{
    setObjectName(QStringLiteral("pageNavigation"));
    setStyleSheet(QString::fromLatin1(RowStyle));
    mpPrevPage->setObjectName(QStringLiteral("prevPage"));
    mpNextPage->setObjectName(QStringLiteral("nextPage"));
    mpPage->setObjectName(QStringLiteral("page"));
    mpPage->setTextFormat(Qt::PlainText);
    mpPage->setAlignment(Qt::AlignCenter);
    mpPage->setMinimumWidth(mpPage->fontMetrics().horizontalAdvance(QStringLiteral("16/16")) + 4);

    auto *numbers = new QHBoxLayout;
    numbers->setSpacing(1);
    for (int page = 1; page <= vorlinmodel::MaxPage; ++page) {
        addNumber(page);
        numbers->addWidget(mNumbers.last(), 1);
    }
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addStretch(1);
    layout->addWidget(mpPrevPage);
    layout->addWidget(mpPage);
    layout->addWidget(mpNextPage);
    layout->addLayout(numbers, 100); // all that there is, up to their largest width
    layout->addStretch(1);
    retranslate();
}

void PageNavigation::addNumber(int page)
{
    auto *number = new QToolButton(this);
    number->setObjectName(QStringLiteral("page%1").arg(page));
    number->setText(QString::number(page));
    number->setCheckable(true);
    number->setAutoExclusive(true);
    number->setFixedHeight(NumberHeight);
    number->setMinimumWidth(SmallestNumberWidth);
    number->setMaximumWidth(LargestNumberWidth);
    number->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    connect(number, &QToolButton::clicked, this, [this, page] { emit sigPageChosen(page - 1); });
    mNumbers.append(number);
}

void PageNavigation::showPage(int page)
{
    mpPage->setText(QStringLiteral("%1/%2").arg(page).arg(vorlinmodel::MaxPage));
    mpPrevPage->setEnabled(page > 1);
    mpNextPage->setEnabled(page < vorlinmodel::MaxPage);
    if (page >= 1 && page <= mNumbers.size())
        mNumbers[page - 1]->setChecked(true);
}

void PageNavigation::retranslate()
{
    mpPrevPage->setText(mLanguage.Text(TextId::PrevPage));
    mpNextPage->setText(mLanguage.Text(TextId::NextPage));
    for (QPushButton *button : {mpPrevPage, mpNextPage})
        button->setAccessibleName(button->text());
    for (int position = 0; position < mNumbers.size(); ++position) {
        const QString name = tr("Page %1").arg(position + 1);
        mNumbers[position]->setToolTip(name);
        mNumbers[position]->setAccessibleName(name);
    }
}
