#include "functionlist.h"

#include "base/iframeworkcontext.h"
#include "base/language.h"
#include "editorcontext.h"
#include "model/functioncatalogue.h"
#include "model/functionids.h"

namespace Catalogue = vorlinmodel::FunctionCatalogue;

namespace {

constexpr int VideoTextId =
    50; // the catalogue, which has the texts of all others, does not know the function

} // namespace

QString functionName(const EditorContext &context, int fid)
{
    const int textId = fid == vorlinmodel::VIDEO_FID ? VideoTextId : Catalogue::textId(fid);
    return textId == 0 ? QString() : context.framework.languageManager()->Text(textId).trimmed();
}

QString functionIcon(int fid)
{
    switch (fid) {
    case vorlinmodel::HOME_PAGE_FID:
        return QStringLiteral(":/icon/function_icon/Home_page_90x84.png");
    case vorlinmodel::OPEN_FILE_FID:
        return QStringLiteral(":/icon/function_icon/Open_file_90x84.png");
    case vorlinmodel::OPEN_WEB_FID:
        return QStringLiteral(":/icon/function_icon/Open_web_90x84.png");
    case vorlinmodel::VIDEO_FID:
        return QStringLiteral(":/icon/function_icon/Video_90x84.png");
    default:
        return Catalogue::defaultIcon(fid);
    }
}

bool isOfferedByEditor(int fid)
{
    return fid == vorlinmodel::HOME_PAGE_FID || fid == vorlinmodel::OPEN_FILE_FID ||
           fid == vorlinmodel::OPEN_WEB_FID || fid == vorlinmodel::VIDEO_FID;
}
