/// Texts of a person in INI files.
#pragma once

#include <QString>
#include <QVariant>
#include <algorithm>

namespace vorlindesk {

/// What to hand to QSettings::setValue() for @p text: its INI writer drops every character beyond U+FFFF (an
/// emoji, a rare ideograph) when it writes UTF-8, so a text with one goes as bytes. QVariant::toString() of
/// the value that is read gives the text in both cases.
inline QVariant iniText(const QString &text)
{
    const bool hasLost = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isSurrogate(); });
    return hasLost ? QVariant(text.toUtf8()) : QVariant(text);
}

} // namespace vorlindesk
