/// What a system lists of a plugged-in panel.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Socket;

/// The two forms in which systems name the panel's collections.
enum class PathStyle { Windows, Linux };

struct ListedDevice
{
    std::string path;
    std::uint16_t vendorId = 0;
    std::uint16_t productId = 0;
    std::uint16_t release = 0;
    std::uint16_t usagePage = 0;
    std::uint16_t usage = 0;
    std::uint8_t interfaceNumber = 0;
    std::string serial;
    std::string manufacturer;
    std::string product;
};

/// Windows: a path per collection, with its number in it. Linux: all with the path of the one node.
std::vector<ListedDevice> panelCollections(PathStyle style);

/// The path under which the panel's reports travel.
std::string reportPath(PathStyle style);

/// The system that this program runs on.
PathStyle ownPathStyle();
