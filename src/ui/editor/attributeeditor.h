/// Everything that can be set on the selected key.
#pragma once

#include "model/keyid.h"

#include <QFrame>
#include <QVector>

class ContentEditor;
class ModeEditor;
class PicturePicker;
class QLabel;
class QStackedWidget;
class TitleEditor;
struct EditorContext;

class AttributeEditor : public QFrame
{
    Q_OBJECT
public:
    AttributeEditor(EditorContext &context, QWidget *parent);

    bool setup();                                   ///< @return false when it cannot be built
    void showKey(const vorlinmodel::key_id_t &key); ///< key id 0: none
    vorlinmodel::key_id_t key() const { return mKey; }
    void refresh(); ///< the key was changed elsewhere; what the person is typing is left alone
    void focusTitle();
    /// Only the header: the room below is needed for the steps of multiple actions.
    void setCompact(bool compact);
    void retranslate();

public slots:
    void onDataChangeHandler(const vorlinmodel::key_id_t &key_id_, int fid_, bool isDouble);
    /// A step of the multi-action editor was clicked: names it. @p step counts from 0, -1: none.
    void onMultiActionItemClicked(const vorlinmodel::key_id_t &key_id_, int fid_, int step);

private:
    QWidget *makeFields();
    void onKeysChanged(const QVector<vorlinmodel::key_id_t> &keys);
    void noteUnsent();
    void showHeader(int fid);

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    int mFid = 0;   ///< shown; 0: the key has no function
    int mStep = -1; ///< of the multi-action editor, from 0
    int mStepFid = 0;
    QLabel *mpHeader;
    QLabel *mpNotice; ///< what became of a text that could not be sent
    QStackedWidget *mpPages;
    QLabel *mpHint;
    QWidget *mpFields = nullptr;
    PicturePicker *mpPicture = nullptr;
    TitleEditor *mpTitle = nullptr;
    ModeEditor *mpMode = nullptr;
    ContentEditor *mpContent = nullptr;
};
