// SPDX-License-Identifier: MIT

#pragma once

#include <string>

// The tables of the documents that tell what the matcher does, made by the matcher itself.

/// One row per class of the synonym table, as Markdown.
std::string synonymsTable();

/// Pairs of names with their scores, and what the scores are made of.
std::string scoresTable();

/// How each column of a file of assays votes, and what becomes of its vote.
std::string votesTable();
