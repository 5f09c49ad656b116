#pragma once

#include "examples/try_host/ImportResult.h"
#include "examples/try_host/Source.h"

#include <string>

/// "comma", "semicolon", "tab" or "space"; another printable character is shown as it is, any other
/// byte by its number.
std::string delimiterName(char delimiter);

/// How the file was cut, in a few words; nothing for a table.
std::string cuttingText(const Source &source, const ImportResult &result);

/// How many application columns have a file column: "8 of 9 columns matched".
std::string matchedText(const Source &source, const ImportResult &result);
