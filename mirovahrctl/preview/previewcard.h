#pragma once

#include "mirovahrctl/preview/previewwords.h"
#include "mirovahrctl/report/reportwriter.h"

/// The card of one person or thing. \a lines: all of its differences, at least one. What is
/// bookkeeping, and what is too long for a sentence, is in the details.
Card previewCard(const PreviewWords::Lines &lines);

/// The cards; when there are very many, as at a first load, what several people share is said once,
/// in a card that leads theirs.
QVector<Card> gathered(const QVector<Card> &cards);
