#include "panelchoice.h"

PanelChoice::PanelChoice(const char *name, QWidget *parent)
    : ChoiceBox(parent)
{
    setObjectName(QLatin1String(name));
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this] {
        const int chosen = currentData().toInt();
        setCurrentIndex(findData(mValue));
        if (chosen != Unknown && chosen != mValue)
            emit sigChosen(chosen);
    });
}

void PanelChoice::show(const Entries &entries, int value)
{
    mValue = value;
    if (entries != std::exchange(mEntries, entries)) {
        clear();
        for (const auto &entry : entries)
            addItem(entry.second, entry.first);
    }
    setCurrentIndex(findData(value));
}
