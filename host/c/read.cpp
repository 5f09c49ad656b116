// SPDX-License-Identifier: MIT

// What a host reads of the last run.

#include "host/c/Import.h"

using columnimport::answer;
using columnimport::ImportResult;
using columnimport::SourceMatch;

namespace {

template <typename Read>
std::int32_t number(columnimport_import *import, const Read &read) noexcept {
    return answer<std::int32_t>(import, {columnimport_invalid, columnimport_invalid}, read);
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

const char *bytesOf(const std::string &name, std::int64_t *length) {
    if (length != nullptr) {
        *length = static_cast<std::int64_t>(name.size());
    }
    return name.c_str();
}

} // namespace

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
