#pragma once

#include "mirovahrctl/report/reportwriter.h"

class QSettings;
struct Configuration;

/// Each key of an INI file with what the file says ("written", nothing when the key is missing) and
/// what that puts in force ("inForce").
Table configurationTable(QSettings &settings, const Configuration &config);
