#pragma once

#include "examples/try_host/ImportResult.h"
#include "examples/try_host/Source.h"

#include <iosfwd>

/// Writes what came back, for a person and for scripts:
///
///     result: ok
///     delimiter: comma
///     first line holds titles: yes
///     holename<TAB>HOLE-ID
///     fromdepth<TAB>From (m)
///
/// The result is "ok" or "cancel". A column without a match has nothing behind its tab.
void printResult(std::ostream &out, const Source &source, const ImportResult &result);
