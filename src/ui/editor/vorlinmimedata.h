/// What is dragged inside the editor.
#pragma once

#include <QMimeData>
#include <QString>

/// The formats are fixed and shared by every drag source and drop target.
namespace DragFormat {
inline constexpr char FunctionId[] = "quorradent_function_id";     ///< one qint32 through QDataStream
inline constexpr char FunctionIcon[] = "quorradent_function_icon"; ///< VorlinMimeData
inline constexpr char Key[] =
    "application/x-vorlindesk-key"; ///< layout, page and key id, three qint32 through QDataStream
} // namespace DragFormat

namespace vorlindesk {

/// A picture of the gallery, with the video that belongs to it.
class VorlinMimeData : public QMimeData
{
    Q_OBJECT
public:
    QString strData1; ///< path of the picture to show on the key
    QString strData2; ///< path of the video; empty for a plain picture

    /// Streams the pair into the data of @p format.
    void store(const QString &format);
    /// Reads the pair back from @p data; both strings are null when it does not hold the format.
    void load(const QMimeData &data, const QString &format);
};

} // namespace vorlindesk
