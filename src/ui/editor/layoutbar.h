/// The buttons that choose a layout, in a row that scrolls, and a menu of all of them.
#pragma once

#include <QVector>
#include <QWidget>

class QHBoxLayout;
class QMenu;
class QPushButton;
class QScrollArea;
class QToolButton;

class LayoutBar : public QWidget
{
    Q_OBJECT
public:
    explicit LayoutBar(QWidget *parent);

    QPushButton *addLayout(int layoutId, const QString &name); ///< at the end; owned by the bar
    void removeLayout(QPushButton *button);
    void rename(QPushButton *button, const QString &name);
    void showCurrent(const QPushButton *button);
    void retranslate();

protected:
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fitRow();
    void fillMenu();

    QVector<QPushButton *> mButtons;
    QScrollArea *mpArea;
    QWidget *mpRow;
    QHBoxLayout *mpRowLayout;
    QToolButton *mpAll;
    QMenu *mpMenu;
};
