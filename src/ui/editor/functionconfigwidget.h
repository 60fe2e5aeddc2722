/// The editor page: function list, grids, page navigation, attribute editor, multi-action editor.
#pragma once

#include "keyboardframe.h"
#include "layoutchangecommand.h"
#include "model/keyid.h"

#include <QFrame>
#include <QMap>
#include <QMessageBox>
#include <vector>

class AttributeEditor;
class EditToolBar;
class FunctionList;
class KeyboardWidget;
class KeyCommands;
class LayoutBar;
class MultiActionWidget;
class NoticeBar;
class PageNavigation;
class QAbstractButton;
class QLabel;
class QSplitter;
class TransferBar;
struct EditorContext;

namespace MessageBox {
struct Question;
}

/// @p context outlives it. Grids are built when their page is first shown.
class FunctionConfigWidget : public QFrame
{
    Q_OBJECT
public:
    FunctionConfigWidget(EditorContext &context, QWidget *parent);
    ~FunctionConfigWidget() override;

    bool
    setup(); ///< @return false when a part cannot be built, which is logged; nothing else may be called then
    /// Shows a page (1 to 16) of a layout that there is; another is refused, which is logged. @p send: the
    /// person went there, so that the panel is told (one request of kind 7, also when that page is in view
    /// already); false when the panel is there by itself. While the multi-action editor is open the page
    /// waits behind it.
    void setKeyboardCurLayoutAndPage(int layoutId, int pageId, bool send);
    /// The panel was read and shows this page.
    void showDevicePage(int layoutId, int pageId);
    void
    returnToMain(); ///< from a child page, as the function "return to main" does; asks about unsaved steps
    int curLayoutId() const;
    int curPageId() const;
    vorlinmodel::key_id_t currentKey() const; ///< of the page in view; key id 0 when none is selected
    void refreshKeys();                       ///< every built grid: the store was filled anew
    void rebuildLayouts();                    ///< customLayout.ini was changed: frames of layouts come and go
    bool confirmLeave();                      ///< asks about unsaved steps. @return false to stay
    void retranslate();

signals:
    void sigIsChildrenFormChanged();
    void sigmIsFuncListForMultiAction(bool isFuncListForMultiAction);

public slots:
    void onKeyboardNextPageButtonClicked();
    void onKeyboardPrevPageButtonClicked();
    void onKeyboardSelPageButtonClicked(int nSelPageId);
    void onSystemPannelLayoutButtonClicked();
    void onFunctionListButtonMouseClicked();
    void onFunctionListButtonMouseEnter();
    void onFunctionListButtonMouseLeave();
    void onKeyBtnClicked(const vorlinmodel::key_id_t &key_id_, int fid_, bool isDouble);
    void onMultiActionWidgetHide(const vorlinmodel::key_id_t &key_id_, int mainFid);
    void onMsgBtnClicked(QAbstractButton *button);
    /// Sets what was chosen in the gallery on the current key, as a drop does; what cannot be done is told.
    void takeItem(const QString &picture, const QString &video);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool setupFuncListFrame();
    bool setupBtnLayoutFrame();
    bool setupAttrFrame();
    bool setupMultipleActionWidget();
    void makeColumns();
    void arrange();
    void showOwnTexts();
    void connectTools();
    void connectPageKeys();
    void watchFocus();
    void addFrame(int layoutId, const QString &ownName);
    void addMissingFrames(const QMap<int, QString> &names); ///< names of the custom layouts, by id
    void removeFrame(int layoutId);
    void dropGrids(KeyboardFrame &frame);
    void connectGrid(KeyboardWidget *grid);
    void chainTabs(const KeyboardWidget &grid);
    void alignSelection();
    QString layoutName(const KeyboardFrame &frame) const;

    KeyboardFrame *frameOf(int layoutId);
    KeyboardFrame *currentFrame(); ///< the first with the flag; null while the multi-action editor is open
    KeyboardWidget *gridOf(KeyboardFrame &frame, int pageId);
    void makeCurrent(const KeyboardFrame *pFrameData); ///< null: none
    void showPage(KeyboardFrame &frame, int pageId, bool send);
    void turnPage(int step);
    void selectOnPanel(int layoutId, int pageId);
    bool showView(const PageInView &view);

    void openMultiActions(const vorlinmodel::key_id_t &key);
    void openChildPage(int keyId);
    void setChildrenForm(bool on);
    void refreshFunctionList();
    void showStep(const QVector<vorlinmodel::key_id_t> &keys);
    void activateFunction(int fid);
    QMessageBox::StandardButton ask(const MessageBox::Question &question);
    void showHint(bool isBright);

    EditorContext &mContext;
    int mCurLayoutId = 1;
    int mCurPageId = 1;
    const int mMaxPage = vorlinmodel::MaxPage;
    bool mIsKeyTouched = false; ///< the attributes went to a key that may not be the current one
    int mChildPageKeyId = 1;    ///< of the child-page key last opened
    bool isFuncListForMultiAction = false;
    std::vector<KeyboardFrame> mKeyboardList; ///< in the order of their buttons; the standard layout first
    QMessageBox::StandardButton mAnswer = QMessageBox::Cancel;

    FunctionList *mpFunctionList = nullptr;
    QLabel *mpHint = nullptr;
    QWidget *mpKeysView = nullptr; ///< everything of the main view above the attribute editor
    LayoutBar *mpLayoutBar = nullptr;
    EditToolBar *mpTools = nullptr;
    NoticeBar *mpNotice = nullptr;
    TransferBar *mpTransfer = nullptr;
    GridArea *mpGridArea = nullptr;
    PageNavigation *mpNavigation = nullptr;
    KeyCommands *mpCommands = nullptr;
    AttributeEditor *mpAttributes = nullptr;
    MultiActionWidget *mpMultiActions = nullptr;
    QSplitter *mpSplitter = nullptr;
    QWidget *mpUpper = nullptr; ///< above its handle: notice, keys or steps
    QWidget *mpListColumn = nullptr;
    QList<int> mSplitterSizes; ///< before the multi-action editor was opened
};
