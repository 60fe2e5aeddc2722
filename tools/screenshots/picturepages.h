/// The pages that deal with pictures: gallery, layouts and picture upload.
#pragma once

#include <QStringList>

class Photographer;

namespace vorlindesk {
class LanguageManager;
}

/// Paints some photographs. @return their files, in @p folder.
QStringList makePhotos(const QString &folder);
void fillGallery(Photographer &photographer, const QStringList &photos);

/// A new layout with large keys and a background, and how the background is chosen.
void takeLayouts(Photographer &photographer, vorlindesk::LanguageManager &language, const QString &photo);
void takePictureUpload(Photographer &photographer, vorlindesk::LanguageManager &language,
                       const QString &photo);
