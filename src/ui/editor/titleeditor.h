/// The part of the attribute editor for a key's title: text, size, colour, alignment.
#pragma once

#include "model/keyattribute.h"
#include "model/keyid.h"

#include <QWidget>

class ColourButton;
class LimitedText;
class QButtonGroup;
class QGridLayout;
class QLabel;
class QSlider;
class QSpinBox;
struct EditorContext;

class TitleEditor : public QWidget
{
    Q_OBJECT
public:
    TitleEditor(EditorContext &context, QWidget *parent);

    /// @p anew: another key than before, or another function, so that nothing in the fields is of the
    /// person's typing.
    void showKey(const vorlinmodel::key_id_t &key, const vorlinmodel::key_atttribute_t &record, bool anew);
    bool isUnsent() const; ///< the field has a title that the panel cannot carry
    void focusTitle();
    void retranslate();

private:
    void buildSize();
    void buildAlignment();
    void buildLayout();
    void showSize(int points);
    void onTitle(const QString &title);
    void onSize(int points);
    void onColour(const QColor &colour);
    void onAlignment(int alignment);

    EditorContext &mContext;
    vorlinmodel::key_id_t mKey;
    LimitedText *mpTitle;
    QLabel *mpSizeLabel;
    QSlider *mpSlider;
    QSpinBox *mpSpin;
    QLabel *mpLookLabel; ///< of colour and alignment
    ColourButton *mpColour;
    QButtonGroup *mpAlignment; ///< buttons by vorlinmodel::TitleAlignment
    bool mShowing = false;
};
