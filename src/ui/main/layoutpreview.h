/// A drawing of one layout: its keys, merged ones too, as they look on its first page.
#pragma once

#include "ui_editor/keydescriptor.h"

#include <QVector>
#include <QWidget>

struct EditorContext;

class LayoutPreview : public QWidget
{
    Q_OBJECT
public:
    LayoutPreview(EditorContext &context, QWidget *parent);

    void showLayout(int layoutId);

    QSize sizeHint() const override { return {520, 300}; }
    QSize minimumSizeHint() const override { return {300, 170}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    EditorContext &mContext;
    QVector<KeyDescriptor> mKeys;
};

/// The keys of page 1 of a layout; none when customLayout.ini does not know it.
QVector<KeyDescriptor> keysOfLayout(int layoutId);
