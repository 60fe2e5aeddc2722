#include "textlimit.h"

#include "wire/attributevalue.h"
#include "wire/textcodec.h"

#include <QStringList>
#include <QTextDocument>
#include <QVector>
#include <algorithm>
#include <iterator>

namespace TextLimit {

static_assert(MaxBytes == AttributeValue::MaxTextBytes);

namespace {

constexpr int MostNamed = 8;

bool hasShape(uint character)
{
    return QChar::isPrint(character) && !QChar::isMark(character) && !QChar::isSpace(character);
}

QString nameOf(uint character)
{
    if (hasShape(character))
        return QString::fromUcs4(&character, 1);
    return QStringLiteral("U+%1").arg(character, 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace

Check check(const QString &text, Encoding encoding)
{
    if (encoding == Encoding::TextOutput)
        return {TextCodec::toOutput(text).size(), {}};
    return {TextCodec::toGbk(text).size(), TextCodec::charactersNotInGbk(text)};
}

QString singleLine(const QString &typed)
{
    QString line;
    std::copy_if(typed.cbegin(), typed.cend(), std::back_inserter(line),
                 [](QChar character) { return character.category() != QChar::Other_Control; });
    return line.trimmed();
}

QString typedText(const QTextDocument &document)
{
    // Shift+Enter makes the other separator, which no program that gets the text would take for a line end.
    return document.toRawText()
        .replace(QChar::ParagraphSeparator, QLatin1Char('\n'))
        .replace(QChar::LineSeparator, QLatin1Char('\n'));
}

QString nameCharacters(const QString &lacking)
{
    const QVector<uint> characters = lacking.toUcs4();
    QStringList names;
    for (const uint character : characters.mid(0, MostNamed))
        names.append(nameOf(character));
    if (characters.size() > MostNamed)
        names.append(QStringLiteral("…"));
    return names.join(QLatin1Char(' '));
}

} // namespace TextLimit
