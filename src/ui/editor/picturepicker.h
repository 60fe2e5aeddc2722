/// The part of the attribute editor for a key's picture: how it looks, another one, the function's icon
/// again.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QWidget>

class KeyPreview;
class QLabel;
class QPushButton;
struct EditorContext;

class PicturePicker : public QWidget
{
    Q_OBJECT
public:
    PicturePicker(EditorContext &context, QWidget *parent);

    void showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record);
    void retranslate();

private:
    void choose();

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    KeyPreview *mpPreview;
    QLabel *mpHint;
    QPushButton *mpChoose;
    QPushButton *mpReset;
};
