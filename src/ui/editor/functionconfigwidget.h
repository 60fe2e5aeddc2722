/// The editor page: function list, grids, page navigation, attribute editor, multi-action editor.
#pragma once

#include "model/keyid.h"

#include <QFrame>

class QAbstractButton;
struct EditorContext;

class FunctionConfigWidget : public QFrame
{
    Q_OBJECT
public:
    FunctionConfigWidget(EditorContext &context, QWidget *parent);
    ~FunctionConfigWidget() override;

    bool setup();
    void setKeyboardCurLayoutAndPage(int layoutId, int pageId, bool send);
    /// The panel was read and shows this page.
    void showDevicePage(int layoutId, int pageId);
    void returnToMain(); ///< from a child page, as the function "return to main" does
    int curLayoutId() const;
    int curPageId() const;
    void refreshKeys();    ///< every built grid: the store was filled anew
    void rebuildLayouts(); ///< customLayout.ini was changed: frames of layouts come and go
    bool confirmLeave();   ///< asks about unsaved steps. @return false to stay
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
};
