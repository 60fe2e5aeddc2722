#include "stepcombination.h"

#include "keystate.h"
#include "stepcontent.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QScreen>

namespace {

constexpr QChar Separator(u'#');
constexpr int ChoicesPerRow = 2;
constexpr int ChoiceWidth = 150;

} // namespace

StepCombination::StepCombination(QWidget *parent)
    : QPushButton(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); // long combinations must not push the rest away
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &StepCombination::choose);
}

void StepCombination::setCombination(const QString &combination)
{
    mKeys = combinationKeys(combination);
    retranslate();
}

void StepCombination::retranslate()
{
    QString text = mKeys.join(QStringLiteral(" + "));
    setToolTip(text.toHtmlEscaped());
    setAccessibleName(mKeys.isEmpty() ? tr("Choose keys") : text);
    setText(mKeys.isEmpty() ? tr("Choose keys") : text.replace(u'&', QStringLiteral("&&")));
}

void StepCombination::choose()
{
    auto *popup = new QFrame(this, Qt::Popup);
    popup->setObjectName(QStringLiteral("keyChoice"));
    popup->setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QGridLayout(popup);
    for (int place = 0; place < StepContent::MaxKeys; ++place)
        layout->addWidget(makeChoice(popup, place), place / ChoicesPerRow, place % ChoicesPerRow);
    popup->adjustSize();
    QPoint place = mapToGlobal(QPoint(0, height()));
    const QRect area = screen()->availableGeometry();
    if (place.y() + popup->height() > area.bottom()) // above the button where the screen ends
        place.setY(mapToGlobal(QPoint()).y() - popup->height());
    place.setX(qMin(place.x(), area.right() - popup->width()));
    popup->move(place);
    popup->show();
    if (auto *first = popup->findChild<QComboBox *>(QStringLiteral("key1")))
        first->setFocus();
}

/// Typing the first letters of a name finds it.
QComboBox *StepCombination::makeChoice(QWidget *parent, int place)
{
    auto *choice = new QComboBox(parent);
    choice->setObjectName(QStringLiteral("key%1").arg(place + 1));
    choice->setAccessibleName(tr("Key %1").arg(place + 1));
    choice->setMinimumWidth(ChoiceWidth);
    choice->addItem(tr("(no key)"));
    choice->addItems(StepContent::keyNames());
    const QString name = mKeys.value(place);
    if (choice->findText(name) < 0 && !name.isEmpty())
        choice->addItem(name); // unknown here, and shown as it is
    choice->setCurrentIndex(name.isEmpty() ? 0 : choice->findText(name));
    connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this, [this, parent] { take(*parent); });
    return choice;
}

/// The choices keep their places while they are open, also with empty ones between; what is stored has none.
void StepCombination::take(const QWidget &popup)
{
    QStringList chosen;
    for (int place = 1; place <= StepContent::MaxKeys; ++place) {
        const auto *choice = popup.findChild<QComboBox *>(QStringLiteral("key%1").arg(place));
        if (choice && choice->currentIndex() > 0)
            chosen.append(choice->currentText());
    }
    emit edited(chosen.join(Separator));
}
