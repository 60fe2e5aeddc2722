/// The page of the panel's layouts: which there are, and how each divides the panel.
#pragma once

#include <QFrame>

class LayoutPreview;
class QLabel;
class QListWidget;
class QPushButton;
struct EditorContext;

class LayoutPage : public QFrame
{
    Q_OBJECT
public:
    LayoutPage(EditorContext &context, QWidget *parent);

    bool setup();   ///< @return false when it cannot be built
    void refresh(); ///< reads anew which layouts there are
    void retranslate();

signals:
    void sigShowInEditor(int layoutId);

private:
    int chosenLayout() const; ///< 0: none
    void showInEditor();

    EditorContext &mContext;
    QLabel *mpCaption;
    QListWidget *mpList;
    LayoutPreview *mpPreview;
    QLabel *mpKeyCount;
    QPushButton *mpShow;
};
