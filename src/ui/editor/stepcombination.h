/// The content of a key combination step, in place: a button with the keys, which opens a choice of four.
#pragma once

#include <QPushButton>

class QComboBox;

class StepCombination : public QPushButton
{
    Q_OBJECT
public:
    explicit StepCombination(QWidget *parent);

    void setCombination(const QString &combination); ///< names joined with "#"
    void retranslate();

signals:
    void edited(const QString &combination);

private:
    void choose();
    QComboBox *makeChoice(QWidget *parent, int place);
    void take(const QWidget &popup);

    QStringList mKeys; ///< without empty places
};
