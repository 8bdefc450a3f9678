#pragma once

#include <QString>

/// What the program says of itself, without a line feed at the end.
namespace Overview {

/// The help: the subcommands, how to see more of each, and the exit statuses.
QString ofSubcommands();

/// For whoever calls the program without arguments: the questions that it answers.
QString ofQuestions();

} // namespace Overview
