#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

/// One try with these bytes. Ends the program when something is not as it must be.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace FuzzTarget {

/// The bytes of a try.
QByteArray bytes(const uint8_t *data, size_t size);

/// Ends the program with this text, unless the condition holds.
void require(bool condition, const QString &text);

/// Makes the zone UTC: in others Qt reads some dates otherwise than the export means them.
void settleZone();

} // namespace FuzzTarget
