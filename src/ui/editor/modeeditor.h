/// The part of the attribute editor for display mode and image effect.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QWidget>

class QComboBox;
class QLabel;
struct EditorContext;

class ModeEditor : public QWidget
{
    Q_OBJECT
public:
    ModeEditor(EditorContext &context, QWidget *parent);

    void showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record);
    void retranslate();

private:
    void onMode(int mode);
    void onEffect(int effect);

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    QLabel *mpModeLabel;
    QComboBox *mpMode; ///< positions are the values
    QLabel *mpEffectLabel;
    QComboBox *mpEffect;
};
