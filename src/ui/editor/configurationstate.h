/// The whole configuration as the panel shows it, and what differs between two of them.
#pragma once

#include "base/request.h"
#include "keystate.h"
#include "model/backupwatch.h"
#include "model/customlayouts.h"
#include "model/keyid.h"

#include <QByteArray>
#include <QMap>
#include <QVector>

struct ConfigurationState
{
    QMap<vorlinmodel::key_id_t, KeyState> keys;
    QMap<vorlinmodel::key_id_t, QByteArray> videos; ///< hashes: a restored video lies under another name
    QMap<int, vorlinmodel::CustomLayout> layouts;
};

/// Reads every picture, and every video that does not come from a backup: takes a while. Any thread. Lacks
/// videos when @p watch gave it up.
ConfigurationState captureConfiguration(const vorlinmodel::IFunctionManager &store,
                                        const vorlinmodel::BackupWatch &watch = {});

/// What one key of the panel is to be sent.
struct KeyDifference
{
    vorlinmodel::key_id_t key;
    int fid = 0; ///< of the key as it is to be
    QVector<vorlinmodel::AttributeId> attributes;
};

/// So that a panel that shows @p before shows @p after. What it shows of @p unknown is not known: these are
/// made anew when they differ.
QVector<KeyDifference> differences(const ConfigurationState &before, const ConfigurationState &after,
                                   const QVector<vorlinmodel::key_id_t> &unknown);

/// Ids of the layouts that the panel has to be told of, ascending.
QVector<int> layoutDifferences(const ConfigurationState &before, const ConfigurationState &after);
