/// Text encodings of the panel: GBK for titles and addresses, UTF-16LE for text output.
#pragma once

#include <QByteArray>
#include <QString>

namespace TextCodec {

QByteArray toGbk(const QString &text);           ///< characters that GBK lacks become "?"
QString fromGbk(const QByteArray &bytes);        ///< up to the first NUL
QString charactersNotInGbk(const QString &text); ///< each once, in order; empty when all can be carried

/// @p text in GBK or UTF-8, cut to at most @p maxBytes on a whole character (surrogate pairs stay whole).
QByteArray toGbk(const QString &text, int maxBytes);
QByteArray toUtf8(const QString &text, int maxBytes);

/// Text output: UTF-16LE without terminator.
QByteArray toOutput(const QString &text);
QByteArray toOutput(const QString &text, int maxBytes); ///< cut on a whole character
/// Ends at the first 0x0000 unit or at the end; an odd last byte is ignored.
QString fromOutput(const QByteArray &bytes);

/// UTF-8 up to the first NUL.
QString fromUtf8(const QByteArray &bytes);

} // namespace TextCodec
