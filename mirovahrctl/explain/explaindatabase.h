#pragma once

struct ExplainContext;

/// What the database holds of a person, and whether the plugin recognises the person there.
void explainDatabase(ExplainContext &context);

/// The person's row as the plugin reads it, for when there is no line to compare it with.
void explainRowOnly(ExplainContext &context);
