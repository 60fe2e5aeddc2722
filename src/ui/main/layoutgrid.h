/// The keys of a layout, drawn like the panel, and the selection of those that are to be merged or split.
#pragma once

#include "model/keyface.h"
#include "model/keyid.h"
#include "ui_editor/keydescriptor.h"

#include <QImage>
#include <QPixmap>
#include <QPoint>
#include <QVector>
#include <QWidget>

class LayoutDraft;
class QPainter;
class StoredLayouts;
struct EditorContext;

/// Shows the draft. A rubber band selects: the selection grows to whole keys. Selections are masks of
/// physical keys (bit p - 1 for key p).
class LayoutGrid : public QWidget
{
    Q_OBJECT
public:
    /// @p context, @p draft and @p stored outlive it.
    LayoutGrid(EditorContext &context, const LayoutDraft &draft, StoredLayouts &stored, QWidget *parent);

    quint32 selection() const { return mSelection; } ///< 0: none
    void select(quint32 mask);                       ///< and the keys that it touches, whole
    int shownPage() const;                           ///< 1, unless the background is on other pages only
    QRect place(quint32 mask) const;                 ///< of a key or several, in pixels of the widget

    QSize sizeHint() const override { return {540, 300}; }
    QSize minimumSizeHint() const override { return {300, 170}; }

signals:
    void sigSelectionChanged();
    void sigMerge(); ///< Enter
    void sigSplit(); ///< Delete, or a double click on a key

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void onDraftChanged();
    void onFaceReady(const QString &path);
    void redraw();
    void describe();

    int indexAt(const QPoint &point) const; ///< -1: none
    int indexOf(int physical) const;        ///< of the logical key that holds it; -1 for 0
    QVector<QRect> cells() const;           ///< of the logical keys, in columns and rows
    void selectIn(const QRect &band);
    void selectAlone(int index);
    void selectTo(int index);
    bool walk(const QKeyEvent &event);

    void drawKeys(QPainter &painter);
    void drawKey(QPainter &painter, quint32 mask);
    void drawSelection(QPainter &painter) const;
    vorlinmodel::KeyFace faceOf(quint32 mask, const vorlinmodel::key_id_t &key);
    bool showsBackground(const vorlinmodel::key_id_t &key) const;
    bool losesBackground(const vorlinmodel::key_id_t &key) const;
    vorlinmodel::key_id_t storedKey(quint32 mask) const; ///< key id 0: there is none

    EditorContext &mContext;
    const LayoutDraft &mDraft;
    StoredLayouts &mStored;
    QImage mBackground;
    QString mBackgroundPath;
    QPixmap mDrawn; ///< the keys without the selection; null: to be drawn anew
    quint32 mSelection = 0;
    int mCurrent = 0; ///< physical key within the current one; 0 = none
    int mAnchor = 0;  ///< from which Shift extends the selection
    QPoint mPressed;
    bool mIsPressed = false;
    QRect mBand; ///< empty while there is none
};
