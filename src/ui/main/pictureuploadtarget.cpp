#include "pictureuploadtarget.h"

#include "base/iframeworkcontext.h"
#include "layoutnames.h"
#include "model/functionids.h"
#include "model/ifunctionmanager.h"
#include "ui_editor/editorcontext.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("PictureUploadTarget", source);
}

} // namespace

QString PictureUploadTarget::problem(bool video) const
{
    if (!isSelected())
        return text(QT_TRANSLATE_NOOP("PictureUploadTarget", "No key is selected in the editor."));
    if (fid == 0)
        return text(QT_TRANSLATE_NOOP("PictureUploadTarget",
                                      "The selected key has no function. Give it one in the editor first."));
    if (video && fid != vorlinmodel::VIDEO_FID)
        return text(
            QT_TRANSLATE_NOOP("PictureUploadTarget",
                              "The selected key has no video function. Give it one in the editor first."));
    return {};
}

PictureUploadTarget pictureUploadTarget(const EditorContext &context, const vorlinmodel::key_id_t &key)
{
    PictureUploadTarget target{.key = key};
    if (!target.isSelected())
        return target;
    const auto record = context.edits.store().getKeyAttribute(key);
    target.fid = record ? record->mFId : 0;
    target.size = vorlinmodel::keyPixelSize(key);
    // Both at once: the name of a layout may itself hold a "%2".
    target.name =
        text(QT_TRANSLATE_NOOP("PictureUploadTarget", "Key %1 of %2"))
            .arg(QString::number(key.kid), layoutName(key.lid, *context.framework.languageManager()));
    return target;
}
