/// What the panel keeps: keys with their pictures, pages, layouts, settings, files.
#pragma once

#include "wire/customlayout.h"
#include "wire/homelayout.h"
#include "wire/keyrecord.h"

#include <QByteArray>
#include <QMap>
#include <QSize>
#include <QString>
#include <compare>

constexpr int PanelColumns = 5;
constexpr int PanelRows = 3;
constexpr int LcdWidth = 90; ///< pixels of one key
constexpr int LcdHeight = 84;
constexpr int StandardLayout = 1; ///< every physical key for itself; all others are custom

/// Place of one key; ordered by layout, then page, then key, the order of a read-back.
struct PanelKeyId
{
    int layout = 0;
    int page = 0;
    int key = 0;
    auto operator<=>(const PanelKeyId &) const = default;
};

struct PanelKey
{
    KeyRecord record;   ///< content cut to the record's area, as it is read back
    QByteArray content; ///< whole: text output may be longer than the record's area
    QByteArray picture; ///< PNG file; empty when none was sent
    QByteArray video;
    QByteArray actions;   ///< u16 length and the entries, as received
    bool latched = false; ///< a self-locking key that was pressed an odd number of times
    bool operator==(const PanelKey &) const = default;
};

struct PanelState
{
    QMap<PanelKeyId, PanelKey> keys; ///< those with a function
    int layout = StandardLayout;     ///< in view
    int page = 1;
    int mainLayout = StandardLayout; ///< where the last child page was opened
    quint8 brightness = 80;
    quint8 systemType = 0;
    HomeLayout::Record home{StandardLayout, {}};
    QMap<int, CustomLayoutRecord::Record> layouts; ///< custom ones, by number
    QByteArray firmware;                           ///< last one taken
    QByteArray configFile;
    QMap<QString, QByteArray> files; ///< uploaded, by name
    QString hardwareVersion = QStringLiteral("PIC-HW 1.2.0");
    QString softwareVersion = QStringLiteral("PIC-SW 3.4.1");
};

/// A key as it is after its function was set: green title of 16 points at the bottom, no effect, no self
/// locking.
PanelKey newPanelKey(const PanelKeyId &id, quint8 functionId);

/// Puts @p content into the key, and as much of it into its record as fits.
void setContent(PanelKey &key, const QByteArray &content);

/// Pixels of a key: one LCD, or columns x 90 by rows x 84 in a custom layout. Empty for a layout or key that
/// the panel was not told of.
QSize keyPixels(const PanelState &state, int layout, int key);
