/// What the panel shows on one key, small; a drop target for pictures and videos.
#pragma once

#include "model/keyid.h"

#include <QElapsedTimer>
#include <QSize>
#include <QTimer>
#include <QWidget>

class QMimeData;
struct EditorContext;

class KeyPreview : public QWidget
{
    Q_OBJECT
public:
    KeyPreview(EditorContext &context, QWidget *parent);

    void showKey(const vorlinmodel::key_id_t &key); ///< anew, also when only its look has changed

    QSize sizeHint() const override;

signals:
    void sigPictureDropped(const QString &path);
    void sigVideoDropped(const QString &path, const QString &picture); ///< its own picture may be empty

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void startOrStopAnimation();
    bool takes(QDropEvent &event) const;
    void dropGalleryEntry(const QMimeData &dragged);
    void dropFile(const QString &path);
    bool isVideoKey() const;
    void setDropMark(bool on);

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    QSize mKeySize; ///< panel pixels
    bool mDropMark = false;
    QTimer mAnimation; ///< runs while the effect moves and is seen
    QElapsedTimer mClock;
};
