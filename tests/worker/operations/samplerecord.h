#pragma once

#include "worker/mirovaronrecord.h"

/// Person 1234, relationship 2: a record in which every field differs from its default.
MirovaRonRecord fullRecord();
