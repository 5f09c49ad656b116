// SPDX-License-Identifier: MIT

#pragma once

#include <string>

// The documents' tables about the matcher, made by the matcher itself.

/// One row per class of the synonym table, as Markdown.
std::string synonymsTable();

/// Pairs of names with their scores and the reasons for them.
std::string scoresTable();

/// The vote of each column of a file of assays, and its result.
std::string votesTable();
