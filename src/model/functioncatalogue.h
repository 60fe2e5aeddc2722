/// The functions that a key can have: their order in the editor, their texts and their icons.
#pragma once

#include <QString>

/// Fixed tables; any thread.
namespace vorlinmodel::FunctionCatalogue {

/// The list of the group "Function".
int functionCount();
int functionFid(int position); ///< 0 when out of range
QString functionIcon(int fid); ///< empty when this list has no such function

/// The list of the group "System Shortcut".
int shortcutCount();
int shortcutFid(int position); ///< 0 when out of range
int shortcutTextId(int fid);   ///< row of the text table, 0 when this list has no such function
QString shortcutIcon(int fid); ///< empty when this list has no such function

/// Icon that a key gets with its function: from the function list below fid 15, else from the shortcut list.
QString defaultIcon(int fid);

/// Row of the text table that names a function, also of those that are in neither list (1, 2, 3, 11 and 12);
/// 0 for a number that is no function.
int textId(int fid);

/// @return the catalogue's icon when @p image is the empty-content icon of function @p fid (which stands for
/// a text, combination, child page or action list that is not set yet), else @p image as it is.
QString withContentIcon(int fid, const QString &image);

} // namespace vorlinmodel::FunctionCatalogue
