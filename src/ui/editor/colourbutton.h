/// A button that shows a colour and lets the person pick another.
#pragma once

#include <QColor>
#include <QPushButton>

class QFrame;

/// Opens a palette of a few good colours, with the way to all others.
class ColourButton : public QPushButton
{
    Q_OBJECT
public:
    explicit ColourButton(QWidget *parent);

    void setColour(const QColor &colour); ///< an invalid one shows as the green that keys begin with
    void cancel();                        ///< closes what is open for picking
    void retranslate();

signals:
    void sigPicked(const QColor &colour);

private:
    void openPalette();
    void openDialog();
    void pick(const QColor &colour);
    void addSwatches();

    QColor mColour;
    QFrame *mpPalette;
    QPushButton *mpMore;
};
