#include "fontstyle.h"

namespace vorlindesk {
namespace {

double mainFontSize(double logicalDpi)
{
    constexpr double plainDpi = 96;
    constexpr double largest = 12; // points
    if (logicalDpi <= plainDpi)
        return largest;
    // The step from 96 DPI to just above it is wanted, as are those at 144 and 192.
    const double ratio = logicalDpi / plainDpi;
    if (logicalDpi >= 192)
        return largest - (ratio + 2.6);
    if (logicalDpi > 144)
        return largest - (ratio + 1.6);
    return largest - (ratio + 0.6);
}

} // namespace

QString mainFontStyle(double logicalDpi)
{
    return QStringLiteral("font: 75 %1pt \"Arial\";").arg(QString::number(mainFontSize(logicalDpi), 'g', 6));
}

} // namespace vorlindesk
