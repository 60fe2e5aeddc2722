/// A choice that the panel decides on.
#pragma once

#include "ui_common/choicebox.h"

#include <QPair>
#include <QVector>

/// Offers values with their names. What the person picks counts, and is shown, once the panel has said so.
class PanelChoice : public ChoiceBox
{
    Q_OBJECT
public:
    using Entries = QVector<QPair<int, QString>>;
    static constexpr int Unknown = -1; ///< value of an entry that cannot be chosen

    PanelChoice(const char *name, QWidget *parent);

    /// @p value as the panel reported it; one of @p entries. A list that is the same may stay open.
    void show(const Entries &entries, int value);

signals:
    void sigChosen(int value); ///< another one than the panel's

private:
    Entries mEntries;
    int mValue = Unknown;
};
