#pragma once

#include <QStringList>

class PreviewUndoPlan;
struct PreviewSchema;

/// What cannot be taken back of the differences of a preview, or is left to others: sentences.
QStringList undoLimits(const PreviewSchema &schema, const PreviewUndoPlan &plan);
