/// The custom layouts of the file, for a page that shows them again and again.
#pragma once

#include "model/customlayouts.h"

#include <QStringList>
#include <QVector>
#include <optional>

/// Reads the file when it is first asked, and not again before forget(): with twenty layouts each reading
/// takes a millisecond, and one letter of a title asks for all of them.
class StoredLayouts
{
public:
    void forget() { mRead.reset(); } ///< the file has changed

    QVector<int> ids(); ///< StandardLayoutId first, the others ascending
    /// @return nothing when the file has no such layout; else what is valid until forget().
    const vorlinmodel::CustomLayout *find(int layoutId);
    QStringList problems() { return read().problems; } ///< of the file, in plain words

private:
    const vorlinmodel::CustomLayouts &read();

    std::optional<vorlinmodel::CustomLayouts> mRead;
};
