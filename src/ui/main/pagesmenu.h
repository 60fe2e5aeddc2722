/// A menu in which several pages of a layout are chosen.
#pragma once

#include <QMenu>
#include <QVector>

class PagesMenu : public QMenu
{
    Q_OBJECT
public:
    explicit PagesMenu(QWidget *parent);

    void showPages(const QVector<int> &pages); ///< 1 to 16
    void retranslate();

signals:
    void sigPages(const QVector<int> &pages); ///< the person has chosen these, ascending; at least one
    void sigPagesWithKeys();                  ///< the person wants those that have keys

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void onToggled();
    bool toggleActive();

    QAction *mpWithKeys;
    QVector<QAction *> mPages; ///< of page 1, 2 and so on
    bool mIsPressed = false;   ///< the left button, on the menu
};
