/// What the widgets of the editor share.
#pragma once

#include "keyedits.h"
#include "keyfaces.h"
#include "layoutedits.h"
#include "pictureplacement.h"
#include "videoplacement.h"

#include <QVector>
#include <array>
#include <functional>

namespace vorlindesk {
class IFrameworkContext;
}

/// Where the child page of a key leads, as far as this run has learnt; -1 is "not set".
struct ChildPageEntry
{
    qint32 layoutId = -1;
    qint32 pageId = -1;
    qint32 sum = -1;
};

/// Borrowed by every widget of the editor, and outlives them. User-interface thread only.
struct EditorContext
{
    explicit EditorContext(vorlindesk::IFrameworkContext &context)
        : framework(context)
        , edits(context)
        , layouts(edits)
        , faces(edits.store())
        , videos(edits)
        , pictures(edits)
    {}

    vorlindesk::IFrameworkContext &framework;
    KeyEdits edits;
    LayoutEdits layouts;
    KeyFaces faces;
    VideoPlacement videos;
    PicturePlacement pictures;
    bool childrenForm = false;                   ///< the page in view is a child page
    std::array<ChildPageEntry, 16> childPages{}; ///< by key id, 1 to 15

    /// Whoever deletes keys at the person's wish (menu, Delete, cut) calls this when it is set, else @p
    /// remove itself: the page asks first what may be lost with them (the keys of child pages), and then runs
    /// @p remove inside one step of the history, or not at all.
    std::function<void(const QVector<vorlinmodel::key_id_t> &keys, const std::function<void()> &remove)>
        deleteKeys;

    /// Set by the page. Whoever gives keys whole states calls this when it is set, within the same change():
    /// child-page keys among them get their way back, and the person hears what there is to know.
    std::function<void(const QVector<KeyPlacement> &placed)> completeChildPages;
};
