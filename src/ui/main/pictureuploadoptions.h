/// The right column of the picture upload page: for which key, how it is filled, and how that looks.
#pragma once

#include "model/keyface.h"
#include "model/videoconversion.h"
#include "pictureuploadtarget.h"

#include <QWidget>

class PictureUploadPreview;
class QCheckBox;
class QComboBox;
class QLabel;

class PictureUploadOptions : public QWidget
{
    Q_OBJECT
public:
    enum class Kind { Nothing, Picture, Animation, Video }; ///< an animation may be used as either

    explicit PictureUploadOptions(QWidget *parent);

    /// A key that is selected anew becomes the chosen shape.
    void setTarget(const PictureUploadTarget &target);
    void setKind(Kind kind);
    void showFace(const vorlinmodel::KeyFace &face, const QString &facts); ///< of the chosen shape
    void retranslate();

    bool usesVideo() const;                      ///< a video, or an animation that is used as one
    bool isForKey() const;                       ///< the shape is that of the selected key
    QSize targetSize() const;                    ///< pixels of the chosen shape
    vorlinmodel::VideoFit fit() const;           ///< of a picture: Cover or Contain
    vorlinmodel::VideoSettings settings() const; ///< of a video

signals:
    void sigChanged(); ///< anything of it, by the person

private:
    void fillShapes();
    void fillFits();
    void changeUse();
    void showControls();

    PictureUploadTarget mTarget;
    Kind mKind = Kind::Nothing;
    QLabel *mpUseCaption;
    QComboBox *mpUse;
    QLabel *mpShapeCaption;
    QComboBox *mpShape;
    QLabel *mpFitCaption;
    QComboBox *mpFit;
    QCheckBox *mpCut;
    QLabel *mpPreviewCaption;
    PictureUploadPreview *mpPreview;
    QLabel *mpFacts;
};
