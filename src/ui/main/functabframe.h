/// The menu of the four pages.
#pragma once

#include <QFrame>
#include <QVector>

class FrameIconButton;

namespace vorlindesk {
class LanguageManager;
}

class FuncTabFrame : public QFrame
{
    Q_OBJECT
public:
    FuncTabFrame(const vorlindesk::LanguageManager &language, QWidget *parent);

    /// Shows which page is in view (0 to 3), without asking for it.
    void showSelected(int index);
    void retranslate();

signals:
    void sigSelected(int index); ///< the person asks for a page, 0 to 3

public slots:
    void onFrameClicked(); ///< the sender says which entry

private:
    const vorlindesk::LanguageManager &mLanguage;
    QVector<FrameIconButton *> mButtons; ///< by index of the page
};
