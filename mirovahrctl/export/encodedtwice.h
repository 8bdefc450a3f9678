#pragma once

#include <QString>

/// True for a text that a program has encoded in UTF-8 twice, such as "NovÃ¡kovÃ¡": its characters
/// are the bytes of a UTF-8 text in one of the encodings that HR's programs use.
bool isEncodedTwice(const QString &text);
