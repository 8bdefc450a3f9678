#pragma once

#include "mirovahrctl/explain/personstate.h"
#include "mirovahrctl/pluginside/pluginview.h"
#include "mirovahrctl/program/report.h"
#include "plugin/configuration.h"

/// What the explanation of one person has in hand.
struct ExplainContext {
    const Configuration &configuration;
    PluginView &view;
    Report &report;
    PersonState person;
};
