// SPDX-License-Identifier: MIT

// The functions that read the last run, and a file before one.

#include "host/c/Import.h"

#include "delimited/likelyDelimiter.h"

#include <type_traits>

using columnimport::answer;
using columnimport::ImportResult;
using columnimport::MatchOrigin;
using columnimport::SourceMatch;

namespace {

/// One call that reads a number or a text of `import`.
template <typename Read>
auto reading(columnimport_import *import, const Read &read) noexcept {
    using Value = decltype(read(*import));
    if constexpr (std::is_pointer_v<Value>) {
        return answer<Value>(import, nullptr, nullptr, read);
    } else {
        return answer<Value>(import, columnimport_invalid, columnimport_invalid, read);
    }
}

const ImportResult &resultOf(const columnimport_import &import) {
    columnimport::require(import.result.has_value(), "There is no result of a run.");
    return *import.result;
}

const SourceMatch &matchOf(const columnimport_import &import, std::int32_t column) {
    const std::vector<SourceMatch> &matches = resultOf(import).matches;
    return matches[columnimport::indexIn(
        matches, column, "There is no application column of this number in the last run.")];
}

static_assert(columnimport::noScore == static_cast<std::int32_t>(columnimport_none));

constexpr bool isSame(MatchOrigin origin, std::int32_t value) {
    return static_cast<std::int32_t>(origin) == value;
}
static_assert(isSame(MatchOrigin::none, columnimport_none));
static_assert(isSame(MatchOrigin::same, columnimport_origin_same));
static_assert(isSame(MatchOrigin::synonym, columnimport_origin_synonym));
static_assert(isSame(MatchOrigin::alternative, columnimport_origin_alternative));
static_assert(isSame(MatchOrigin::similar, columnimport_origin_similar));
static_assert(isSame(MatchOrigin::inOrder, columnimport_origin_in_order));
static_assert(isSame(MatchOrigin::saved, columnimport_origin_saved));
static_assert(isSame(MatchOrigin::byHand, columnimport_origin_by_hand));
static_assert(isSame(MatchOrigin::foreign, columnimport_origin_foreign));

const char *bytesOf(const std::string &name, std::int64_t *length) {
    if (length != nullptr) {
        *length = static_cast<std::int64_t>(name.size());
    }
    return name.c_str();
}

} // namespace

std::int32_t columnimport_likely_delimiter(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) -> std::int32_t {
        columnimport::require(read.hasSource && !read.request.table, "No file was set.");
        const auto likely = columnimport::likelyDelimiterOfFile(read.request.path);
        return likely ? static_cast<unsigned char>(likely->delimiter)
                      : static_cast<std::int32_t>(columnimport_none);
    });
}

std::int32_t columnimport_outcome(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) {
        columnimport::require(read.outcome != columnimport_invalid && !read.isOpen,
                              "The import was not run.");
        return read.outcome;
    });
}

std::int32_t columnimport_column_count(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) {
        return static_cast<std::int32_t>(read.request.appColumns.size());
    });
}

const char *columnimport_file_problem(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) {
        const std::string &problem = resultOf(read).fileProblem;
        return problem.empty() ? nullptr : problem.c_str();
    });
}

std::int32_t columnimport_match_position(columnimport_import *import, std::int32_t column) {
    return reading(import, [column](const columnimport_import &read) {
        return matchOf(read, column).position;
    });
}

std::int32_t columnimport_match_origin(columnimport_import *import, std::int32_t column) {
    return reading(import, [column](const columnimport_import &read) {
        return static_cast<std::int32_t>(matchOf(read, column).origin);
    });
}

double columnimport_match_score(columnimport_import *import, std::int32_t column) {
    return reading(
        import, [column](const columnimport_import &read) { return matchOf(read, column).score; });
}

std::int32_t columnimport_match_field(columnimport_import *import, std::int32_t column) {
    return reading(import, [column](const columnimport_import &read) {
        const std::int32_t position = matchOf(read, column).position;
        const std::vector<std::int32_t> &fields = resultOf(read).fields;
        return position < 0 || fields.empty() ? position
                                              : fields[static_cast<std::size_t>(position)];
    });
}

const char *columnimport_match_name(columnimport_import *import, std::int32_t column,
                                    std::int64_t *length) {
    return reading(import, [column, length](const columnimport_import &read) {
        const SourceMatch &match = matchOf(read, column);
        const char *name = bytesOf(match.name, length);
        return match.isNone() ? nullptr : name;
    });
}

std::int32_t columnimport_delimiter(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) -> std::int32_t {
        return static_cast<unsigned char>(resultOf(read).delimiter);
    });
}

std::int32_t columnimport_first_line_holds_titles(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) -> std::int32_t {
        return resultOf(read).holdsTitles ? 1 : 0;
    });
}

std::int32_t columnimport_source_column_count(columnimport_import *import) {
    return reading(import, [](const columnimport_import &read) {
        return static_cast<std::int32_t>(resultOf(read).sourceColumns.size());
    });
}

const char *columnimport_source_column(columnimport_import *import, std::int32_t column,
                                       std::int64_t *length) {
    return reading(import, [column, length](const columnimport_import &read) {
        const std::vector<std::string> &columns = resultOf(read).sourceColumns;
        return bytesOf(columns[columnimport::indexIn(columns, column,
                                                     "The source has no column at this position.")],
                       length);
    });
}
