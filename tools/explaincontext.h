#pragma once

#include "plugin/configuration.h"
#include "tools/personrow.h"
#include "tools/pluginview.h"
#include "tools/report.h"
#include "worker/mirovaronrecord.h"

#include <optional>

/// What the explanation of one person has in hand.
struct ExplainContext {
    const Configuration &configuration;
    PluginView &view;
    Report &report;
    quint32 pid = 0; ///< the person's
    std::optional<PersonRow> row; ///< the row of `people` with that pid
    std::optional<MirovaRonRecord> known; ///< whom the plugin recognises as that person

    /// The uid that the plugin finds; 0 when there is none.
    quint32 uid() const { return row ? row->uid : 0; }
};
