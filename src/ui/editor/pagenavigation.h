/// The row below the grid that turns the pages.
#pragma once

#include <QVector>
#include <QWidget>

class QLabel;
class QPushButton;
class QToolButton;

namespace vorlindesk {
class LanguageManager;
}

class PageNavigation : public QWidget
{
    Q_OBJECT
public:
    PageNavigation(const vorlindesk::LanguageManager &language, QWidget *parent);

    void showPage(int page); ///< 1 to 16: label, marked number, and which buttons can be pressed
    void retranslate();

    QPushButton *prevPageButton() const { return mpPrevPage; }
    QPushButton *nextPageButton() const { return mpNextPage; }
    QLabel *pageLabel() const { return mpPage; }

signals:
    void sigPageChosen(int position); ///< from 0

private:
    void addNumber(int page);

    const vorlindesk::LanguageManager &mLanguage;
    QPushButton *mpPrevPage;
    QLabel *mpPage;
    QPushButton *mpNextPage;
    QVector<QToolButton *> mNumbers;
};
