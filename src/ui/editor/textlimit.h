/// What of a text the panel cannot carry.
#pragma once

#include <QString>

class QTextDocument;

namespace TextLimit {

constexpr int MaxBytes = 128; ///< of a title or content: the area that the panel's record of a key has for it

enum class Encoding {
    Gbk,        ///< titles, paths and addresses
    TextOutput, ///< two bytes for each UTF-16 unit; every character can be carried
};

struct Check
{
    int bytes = 0;   ///< in the encoding
    QString lacking; ///< characters that the encoding has not, each once, in order

    bool fits() const { return bytes <= MaxBytes && lacking.isEmpty(); }
};

Check check(const QString &text, Encoding encoding);

/// The characters of @p lacking for a sentence: blank-separated, those without a shape of their own by number
/// ("U+200D"); of more than eight only the first.
QString nameCharacters(const QString &lacking);

/// What is meant by @p typed in a field of one line: without control characters, which such a field takes
/// when they are pasted but does not show, and without blanks around it.
QString singleLine(const QString &typed);

/// Exactly what was typed, lines ended by "\n": the plain text of the toolkit turns no-break spaces into
/// others.
QString typedText(const QTextDocument &document);

} // namespace TextLimit
