/// A combo box for the dark pages, with an arrow that the style sheets leave out. A text that does not fit
/// ends in dots.
#pragma once

#include <QComboBox>

/// The wheel changes nothing unless the person has turned to the box: what is picked goes to the panel.
class ChoiceBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ChoiceBox(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};
