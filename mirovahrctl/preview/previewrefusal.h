#pragma once

#include "mirovahrctl/report/exitstatus.h"

#include <QString>

/// Why there is no preview.
struct PreviewRefusal {
    ExitStatus status = ExitStatus::NoDatabase;
    QString sentence; ///< without its full stop
};
