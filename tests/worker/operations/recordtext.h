#pragma once

#include "worker/mirovaronrecord.h"

/// All fields of a record in one line, for the messages of failed comparisons (QCOMPARE finds it).
char *toString(const MirovaRonRecord &record);
