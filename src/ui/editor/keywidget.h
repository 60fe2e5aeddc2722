/// One key of the grid.
#pragma once

#include "keydescriptor.h"
#include "model/keyid.h"

#include <QFrame>
#include <QPoint>
#include <QRgb>
#include <QSize>
#include <QString>
#include <memory>

class KeyPictureLabel;
class QAction;
class QDropEvent;
class QMenu;
struct EditorContext;
struct KeyState;

/// Shows the key as the panel does, takes what is dropped on it, and deletes its function. @p context
/// outlives it.
class KeyWidget : public QFrame
{
    Q_OBJECT
public:
    KeyWidget(EditorContext &context, const KeyDescriptor &descriptor, QWidget *parent);
    ~KeyWidget() override;

    bool setup();
    void updateFid();
    void updateKeyIcon();
    void setSelected(bool selected);
    bool isSelected() const { return mSelected; }
    void deleteAttr();

    const KeyDescriptor &descriptor() const { return mDescriptor; }
    vorlinmodel::key_id_t keyId() const { return key_id_; }
    int fid() const { return mFId; }

    /// What a function drop does, also used by the function list's double click. @return false when refused.
    bool takeFunction(int nFid);
    /// What a picture drop does: a picture is on the key once it has been read (PicturePlacement). A video,
    /// which may be empty, counts on keys that play videos.
    void takePicture(const QString &picture, const QString &video);
    /// Shows the mark of edits that the panel has not taken, the tool tip and the accessible name.
    void updateMark();
    void retranslate();

    /// Empties the key and tells the panel; one step, or a part of the step in which it is called. Asks
    /// nobody.
    void removeFunction();

    void click(Qt::KeyboardModifiers modifiers); ///< what a click with the left button does
    void activate();                             ///< what a double click does
    void
    openMenu(const QPoint &globalPosition); ///< runs until it is closed; nothing on a key without a function
    /// Held at the last click.
    Qt::KeyboardModifiers clickModifiers() const { return mClickModifiers; }

signals:
    void clicked();
    void mouseenter();
    void mouseleave();
    void dataChangeSignal(const vorlinmodel::key_id_t &key_id_, int fid_);
    void doubleClicked(const vorlinmodel::key_id_t &key_id_, int fid_);
    /// A function was dropped that the page has to complete: child page (fid 18), within the same step.
    void functionTaken(const vorlinmodel::key_id_t &key_id_, int fid_);
    void reachedByTab(); ///< the focus came with the Tab key

public slots:
    void onButtonClicked();
    void onDeleteActionHandler();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    /// What the icon label shows: equal ones need not be drawn again.
    struct Shown
    {
        qint64 picture = 0;
        QString title;
        int titleFontSize = 0;
        QRgb titleColour = 0;
        int titleAlignment = 0;
        int imageEffects = 0;
        QSize size; ///< device pixels
        bool operator==(const Shown &) const = default;
    };

    bool accepts(const QDropEvent &event) const;
    void answer(QDropEvent &event) const;
    void dropFunction(QDropEvent &event);
    void dropFile(QDropEvent &event);
    void startDrag();
    bool setFunction(int nFid);
    void sendValuesThatFollow(const KeyState &before);
    void forgetBelongings(int fid);
    void forgetSteps(int fid);
    void takeVideo(const QString &picture, const QString &video);
    void setVideo(const QString &video);
    QString spokenFunction() const;

    EditorContext &mContext;
    const KeyDescriptor mDescriptor;
    KeyPictureLabel *mpIcon = nullptr; ///< null until setup()
    const int mEnabled;                ///< physical keys; 0: takes no drops, has no menu
    std::unique_ptr<QMenu> mpMenu;
    QAction *mpDeleteAction = nullptr;
    const vorlinmodel::key_id_t key_id_;
    int mFId = 0;
    bool mSelected = false;
    Shown mShown;
    bool mIsPressed = false; ///< a press that may become a click or a drag
    QPoint mPressPosition;
    Qt::KeyboardModifiers mClickModifiers;
};

/// Longest time for which a video of @p bytes is waited for, in ms; 32-bit arithmetic.
quint32 videoWaitingTime(qint64 bytes);
