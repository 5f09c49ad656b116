// SPDX-License-Identifier: MIT

// The functions that read the last run, and a file before one.

#include "host/c/Import.h"

#include "delimited/likelyDelimiter.h"

using columnimport::answer;
using columnimport::ImportResult;
using columnimport::MatchOrigin;
using columnimport::SourceMatch;

namespace {

template <typename Read>
std::int32_t number(columnimport_import *import, const Read &read) noexcept {
    return answer<std::int32_t>(import, {columnimport_invalid, columnimport_invalid}, read);
}

template <typename Read>
double score(columnimport_import *import, const Read &read) noexcept {
    return answer<double>(import, {columnimport_invalid, columnimport_invalid}, read);
}

template <typename Read>
const char *text(columnimport_import *import, const Read &read) noexcept {
    return answer<const char *>(import, {nullptr, nullptr}, read);
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

/// The header's value for an origin.
std::int32_t told(MatchOrigin origin) {
    switch (origin) {
    case MatchOrigin::none:
        break;
    case MatchOrigin::same:
        return columnimport_origin_same;
    case MatchOrigin::synonym:
        return columnimport_origin_synonym;
    case MatchOrigin::alternative:
        return columnimport_origin_alternative;
    case MatchOrigin::similar:
        return columnimport_origin_similar;
    case MatchOrigin::inOrder:
        return columnimport_origin_in_order;
    case MatchOrigin::saved:
        return columnimport_origin_saved;
    case MatchOrigin::byHand:
        return columnimport_origin_by_hand;
    case MatchOrigin::foreign:
        return columnimport_origin_foreign;
    }
    return columnimport_none;
}

static_assert(columnimport::noScore == static_cast<std::int32_t>(columnimport_none));

const char *bytesOf(const std::string &name, std::int64_t *length) {
    if (length != nullptr) {
        *length = static_cast<std::int64_t>(name.size());
    }
    return name.c_str();
}

} // namespace

std::int32_t columnimport_likely_delimiter(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) -> std::int32_t {
        columnimport::require(read.hasSource && !read.request.table, "No file was set.");
        const auto likely = columnimport::likelyDelimiterOfFile(read.request.path);
        return likely ? static_cast<unsigned char>(likely->delimiter)
                      : static_cast<std::int32_t>(columnimport_none);
    });
}

std::int32_t columnimport_outcome(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) {
        columnimport::require(read.outcome != columnimport_invalid && !read.isOpen,
                              "The import was not run.");
        return read.outcome;
    });
}

std::int32_t columnimport_column_count(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) {
        return static_cast<std::int32_t>(read.request.appColumns.size());
    });
}

const char *columnimport_file_problem(columnimport_import *import) {
    return text(import, [](const columnimport_import &read) {
        const std::string &problem = resultOf(read).fileProblem;
        return problem.empty() ? nullptr : problem.c_str();
    });
}

std::int32_t columnimport_match_position(columnimport_import *import, std::int32_t column) {
    return number(import, [column](const columnimport_import &read) {
        return matchOf(read, column).position;
    });
}

std::int32_t columnimport_match_origin(columnimport_import *import, std::int32_t column) {
    return number(import, [column](const columnimport_import &read) {
        return told(matchOf(read, column).origin);
    });
}

double columnimport_match_score(columnimport_import *import, std::int32_t column) {
    return score(import,
                 [column](const columnimport_import &read) { return matchOf(read, column).score; });
}

std::int32_t columnimport_match_field(columnimport_import *import, std::int32_t column) {
    return number(import, [column](const columnimport_import &read) {
        const std::int32_t position = matchOf(read, column).position;
        const std::vector<std::int32_t> &fields = resultOf(read).fields;
        return position < 0 || fields.empty() ? position
                                              : fields[static_cast<std::size_t>(position)];
    });
}

const char *columnimport_match_name(columnimport_import *import, std::int32_t column,
                                    std::int64_t *length) {
    return text(import, [column, length](const columnimport_import &read) {
        const SourceMatch &match = matchOf(read, column);
        const char *name = bytesOf(match.name, length);
        return match.isNone() ? nullptr : name;
    });
}

std::int32_t columnimport_delimiter(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) -> std::int32_t {
        return static_cast<unsigned char>(resultOf(read).delimiter);
    });
}

std::int32_t columnimport_first_line_holds_titles(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) -> std::int32_t {
        return resultOf(read).holdsTitles ? 1 : 0;
    });
}

std::int32_t columnimport_source_column_count(columnimport_import *import) {
    return number(import, [](const columnimport_import &read) {
        return static_cast<std::int32_t>(resultOf(read).sourceColumns.size());
    });
}

const char *columnimport_source_column(columnimport_import *import, std::int32_t column,
                                       std::int64_t *length) {
    return text(import, [column, length](const columnimport_import &read) {
        const std::vector<std::string> &columns = resultOf(read).sourceColumns;
        return bytesOf(columns[columnimport::indexIn(columns, column,
                                                     "The source has no column at this position.")],
                       length);
    });
}
