/// The page of the panel's layouts: which there are, how each divides the panel, and the editing of it.
#pragma once

#include "layoutdraft.h"
#include "model/keyid.h"
#include "storedlayouts.h"

#include <QFrame>

class BackgroundBox;
class LayoutGrid;
class LayoutList;
class LayoutTools;
class LimitedText;
class QAction;
class QLabel;
class QPushButton;
class QToolButton;
struct EditorContext;

/// What the person does is a draft until it is saved.
class LayoutPage : public QFrame
{
    Q_OBJECT
public:
    LayoutPage(EditorContext &context, QWidget *parent);

    bool setup();        ///< @return false when it cannot be built
    void refresh();      ///< reads anew which layouts there are; unsaved changes stay
    bool confirmLeave(); ///< asks about unsaved changes. @return false to stay
    /// @p homeLayout as the panel reported it; 0: not known.
    void showPanel(bool connected, int homeLayout);
    void retranslate();

signals:
    void sigShowInEditor(int layoutId);
    void sigHomeLayoutChosen(int layoutId); ///< not confirmed yet

private:
    void arrange();
    QWidget *arrangeRight();
    void connectParts();
    void connectDraft();
    QToolButton *addTool(const char *name, const char *icon, const QString &shortcut,
                         void (LayoutPage::*act)());

    void alignDraft();
    void load(int layoutId);
    void showDraft();
    void showList();
    void showHistory();
    void showHome();
    void showNotice();
    void notify(const QString &text);
    QString draftName() const;

    void onChosen(int layoutId);
    void onNew();
    void onDuplicate();
    void onDelete();
    void onMerge();
    void onSplit();
    void onPicture(const QString &path);
    void undo();
    void redo();
    bool save();
    void refreshHalfSaved();
    QString store();
    bool confirmLoss();
    bool hasRoom();
    bool hasChanges() const;
    QString nameOfKey(const vorlinmodel::key_id_t &key) const;

    EditorContext &mContext;
    LayoutDraft mDraft;
    StoredLayouts mStored;
    QString mMessage; ///< of what failed last
    int mHomeLayout = 0;
    bool mConnected = false;
    bool mIsSaving = false;

    QLabel *mpCaption;
    QLabel *mpNotice;
    LayoutList *mpList;
    LayoutGrid *mpGrid;
    LayoutTools *mpTools;
    LimitedText *mpTitle;
    BackgroundBox *mpBackground;
    QToolButton *mpUndo = nullptr;
    QToolButton *mpRedo = nullptr;
    QPushButton *mpHome;
    QPushButton *mpShow;
    QPushButton *mpSave;
};
