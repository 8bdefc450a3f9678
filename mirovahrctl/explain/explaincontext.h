#pragma once

#include "plugin/configuration.h"
#include "tools/personstate.h"
#include "tools/pluginview.h"
#include "tools/report.h"

/// What the explanation of one person has in hand.
struct ExplainContext {
    const Configuration &configuration;
    PluginView &view;
    Report &report;
    PersonState person;
};
