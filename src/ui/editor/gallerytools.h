/// What stands above the gallery: caption, buttons, and what is looked for.
#pragma once

#include "gallerymodel.h"

#include <QWidget>

class ChoiceBox;
class QAction;
class QLabel;
class QLineEdit;
class QToolButton;

namespace vorlindesk {
class LanguageManager;
}

class GalleryTools : public QWidget
{
    Q_OBJECT
public:
    GalleryTools(const vorlindesk::LanguageManager &language, QWidget *parent);

    void setActions(QAction *add, QAction *selectAll, QAction *remove); ///< each gets its button
    QString text() const; ///< to be in the names; without blanks around it
    GalleryModel::Show kind() const;
    void clearFilter();
    void setCount(int shown, int total);
    void retranslate();

signals:
    void sigFilter(); ///< text() or kind() has changed

private:
    QWidget *makeTypeRow();

    const vorlindesk::LanguageManager &mLanguage;
    QLabel *mpCaption;
    QList<QToolButton *> mButtons;
    QLineEdit *mpSearch;
    QLabel *mpTypeCaption;
    ChoiceBox *mpType;
    QLabel *mpCount;
};
