/// One key of the grid.
#pragma once

#include "keydescriptor.h"
#include "model/keyid.h"

#include <QFrame>
#include <QPoint>

class QAction;
class QLabel;
class QMenu;
class QMimeData;
struct EditorContext;

/// Shows the key as the panel does, takes what is dropped on it, and deletes its function. @p context outlives it.
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
    /// What a picture drop does.
    void takePicture(const QString &picture, const QString &video);
    /// Shows the mark of edits that the panel has not taken, the tool tip and the accessible name.
    void updateMark();

signals:
    void clicked();
    void mouseenter();
    void mouseleave();
    void dataChangeSignal(const vorlinmodel::key_id_t &key_id_, int fid_);
    void doubleClicked(const vorlinmodel::key_id_t &key_id_, int fid_);
    /// A function was dropped that the page has to complete: child page (fid 18), within the same step.
    void functionTaken(const vorlinmodel::key_id_t &key_id_, int fid_);

public slots:
    void onButtonClicked();
    void onDeleteActionHandler();
};
