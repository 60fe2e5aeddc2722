#include "combinationfield.h"

#include "attributestyle.h"
#include "keycapture.h"
#include "ui_common/choicebox.h"
#include "wire/keynames.h"

#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr QLatin1Char Separator('#');

/// "#" parts the names of a stored combination, so that it cannot be one of them.
QStringList offeredNames()
{
    QStringList names = KeyNames::all();
    names.removeAll(QString(Separator));
    return names;
}

QStringList namesByPlace(const QString &combination, int places)
{
    QStringList names = combination.split(Separator).mid(0, places);
    for (QString &name : names) {
        if (name == KeyNames::name(0))
            name.clear();
    }
    while (names.size() < places)
        names.append(QString());
    return names;
}

QStringList withoutEmptyEnd(QStringList names)
{
    while (!names.isEmpty() && names.last().isEmpty())
        names.removeLast();
    return names;
}

} // namespace

CombinationField::CombinationField(QWidget *parent)
    : QWidget(parent)
    , mpLabel(new QLabel(this))
    , mpCapture(new KeyCaptureButton(this))
    , mNames(namesByPlace({}, Places))
{
    static_assert(Places == KeyCapture::MostKeys);
    mpCapture->setObjectName(QStringLiteral("pressKeys"));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(AttributeStyle::Gap);
    layout->addWidget(mpLabel, 0, 0);
    layout->addWidget(mpCapture, 0, 1);
    for (int place = 0; place < Places; ++place) {
        QComboBox *box = makeBox(place);
        mBoxes.at(std::size_t(place)) = box;
        layout->addWidget(box, 1 + place / 2, place % 2);
    }
    layout->setRowStretch(1 + Places / 2, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
    mpLabel->setBuddy(mBoxes.front());
    connect(mpCapture, &KeyCaptureButton::sigPressed, this, &CombinationField::showNames);
    connect(mpCapture, &KeyCaptureButton::sigCancelled, this, [this] { showNames(mNames); });
    connect(mpCapture, &KeyCaptureButton::sigCaptured, this, &CombinationField::sigPicked);
    retranslate();
}

QComboBox *CombinationField::makeBox(int place)
{
    constexpr int mostShown = 12;
    auto *box = new ChoiceBox(this);
    box->setObjectName(QStringLiteral("keyName%1").arg(place + 1));
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(6);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    box->setMaxVisibleItems(mostShown);
    box->addItem(QString());
    box->addItems(offeredNames());
    box->completer()->setCompletionMode(QCompleter::PopupCompletion);
    box->completer()->setFilterMode(Qt::MatchContains);
    box->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    connect(box, qOverload<int>(&QComboBox::activated), this,
            [this, box, place](int index) { onPicked(place, box->itemText(index)); });
    connect(box->lineEdit(), &QLineEdit::editingFinished, this, [this, place] { onTyped(place); });
    return box;
}

void CombinationField::showStored(const QString &combination, bool anew)
{
    if (!anew && combination == mStored)
        return;
    mStored = combination;
    mNames = namesByPlace(combination, Places);
    mpCapture->cancel();
    showNames(mNames);
}

void CombinationField::commit()
{
    for (int place = 0; place < Places && !mpCapture->isChecked(); ++place)
        onTyped(place);
}

void CombinationField::setLabel(const QString &text)
{
    mpLabel->setText(text.trimmed());
}

void CombinationField::retranslate()
{
    mpCapture->retranslate();
    for (std::size_t place = 0; place < mBoxes.size(); ++place)
        mBoxes.at(place)->setAccessibleName(tr("Key %1 of the combination").arg(place + 1));
}

void CombinationField::onPicked(int place, const QString &name)
{
    if (mNames.at(place) == name)
        return;
    QStringList names = mNames;
    names.replace(place, name);
    emit sigPicked(withoutEmptyEnd(names));
}

/// A name may be typed in small letters; what is no name gives way to what was there.
void CombinationField::onTyped(int place)
{
    QComboBox *box = mBoxes.at(std::size_t(place));
    const QString typed = box->currentText().trimmed();
    if (typed == mNames.at(place))
        return;
    const int index = box->findText(typed, Qt::MatchFixedString);
    if (index < 0)
        box->setEditText(mNames.at(place));
    else
        onPicked(place, box->itemText(index));
}

void CombinationField::showNames(const QStringList &names)
{
    for (int place = 0; place < Places; ++place) {
        QComboBox *box = mBoxes.at(std::size_t(place));
        const QString name = names.value(place);
        box->setCurrentIndex(box->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive));
        box->setEditText(name);       // a foreign one is in no list
        box->lineEdit()->home(false); // a long name shows its beginning
    }
}
