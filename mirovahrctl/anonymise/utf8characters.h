#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// The characters of texts that should be UTF-8 and may be damaged.
namespace Utf8Characters {

/// Stands in front of a byte that belongs to no character: beyond all that Unicode has.
constexpr uint kByte = 0x80000000U;

/// The text as the plugin decodes it, but beyond a NUL byte.
QString decoded(const QByteArray &text);

/// The code points of a text. A byte that belongs to none stands for itself, as kByte + byte.
QVector<uint> of(const QByteArray &text);

/// The text of these characters: bytes(of(text)) is the text, whatever its bytes.
QByteArray bytes(const QVector<uint> &characters);

} // namespace Utf8Characters
