#include "pagesmenu.h"

#include "model/keyid.h"

#include <QKeyEvent>

PagesMenu::PagesMenu(QWidget *parent)
    : QMenu(parent)
    , mpWithKeys(addAction(QString()))
{
    setObjectName(QStringLiteral("pagesMenu"));
    connect(mpWithKeys, &QAction::triggered, this, &PagesMenu::sigPagesWithKeys);
    addSeparator();
    for (int page = 1; page <= vorlinmodel::MaxPage; ++page) {
        QAction *action = addAction(QString());
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, &PagesMenu::onToggled);
        mPages.append(action);
    }
    retranslate();
}

void PagesMenu::showPages(const QVector<int> &pages)
{
    for (int i = 0; i < mPages.size(); ++i)
        mPages.at(i)->setChecked(pages.contains(i + 1));
}

void PagesMenu::retranslate()
{
    mpWithKeys->setText(tr("All pages with keys"));
    for (int i = 0; i < mPages.size(); ++i)
        mPages.at(i)->setText(tr("Page %1").arg(i + 1));
}

void PagesMenu::onToggled()
{
    QVector<int> pages;
    for (int i = 0; i < mPages.size(); ++i) {
        if (mPages.at(i)->isChecked())
            pages.append(i + 1);
    }
    if (!pages.isEmpty())
        emit sigPages(pages);
    else if (auto *last = qobject_cast<QAction *>(sender()))
        last->setChecked(true); // a background on no page would be none
}

/// The menu stays open while pages are ticked.
bool PagesMenu::toggleActive()
{
    QAction *action = activeAction();
    if (!action || !action->isCheckable())
        return false;
    action->trigger();
    return true;
}

void PagesMenu::mousePressEvent(QMouseEvent *event)
{
    mIsPressed = event->button() == Qt::LeftButton;
    QMenu::mousePressEvent(event);
}

void PagesMenu::mouseReleaseEvent(QMouseEvent *event)
{
    // The end of the click that opened the menu may come here, too, over whatever the menu covers.
    const bool isChoice = event->button() == Qt::LeftButton && std::exchange(mIsPressed, false);
    if (!isChoice || actionAt(event->pos()) != activeAction() || !toggleActive())
        QMenu::mouseReleaseEvent(event);
}

void PagesMenu::keyPressEvent(QKeyEvent *event)
{
    const bool chooses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!chooses || !toggleActive())
        QMenu::keyPressEvent(event);
}
