#pragma once

#include "examples/try_host/Source.h"

#include <string>
#include <vector>

/// The sample files and the sample table.
std::vector<Source> sampleSources();

/// A file of the user's own. A sample file is recognised by its name, wherever it lies; any other
/// file is matched with the application columns of all samples.
Source sourceOfFile(const std::string &path);
