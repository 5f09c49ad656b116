// SPDX-License-Identifier: MIT

// The functions that fill an import.

#include "host/c/Import.h"

#include "names/isUtf8.h"

#include <string_view>
#include <utility>

using columnimport::ImportRequest;
using columnimport::require;

namespace {

/// One call that changes what an import was filled with. `change` copies what the host passes in
/// before it changes anything.
template <typename Change>
std::int32_t fill(columnimport_import *import, const Change &change) noexcept {
    return columnimport::outcomeOf(import, [&change](columnimport_import &filled) {
        require(!filled.isOpen, "The dialog of this import is open.");
        change(filled.request);
        return columnimport_ok;
    });
}

std::string hostsWord(const char *text) {
    require(text != nullptr, "The text is a null pointer.");
    require(columnimport::isUtf8(text), "The text is not UTF-8.");
    return text;
}

std::string bytesOf(const char *name, std::int64_t length) {
    require(length >= 0, "The length of the name is negative.");
    require(name != nullptr || length == 0, "The name is a null pointer.");
    return name == nullptr ? std::string() : std::string(name, static_cast<std::size_t>(length));
}

bool yesOrNo(std::int32_t value) {
    require(value == 0 || value == 1, "The value is neither 0 nor 1.");
    return value == 1;
}

/// The entry of an application column in a list that may be shorter than there are columns.
template <typename List>
typename List::reference entryOf(const ImportRequest &request, List &list, std::int32_t column) {
    const std::size_t index = columnimport::indexIn(
        request.appColumns, column, "There is no application column of this number.");
    list.resize(request.appColumns.size());
    return list[index];
}

} // namespace

std::int32_t columnimport_set_title(columnimport_import *import, const char *title) {
    return fill(import, [&](ImportRequest &request) { request.title = hostsWord(title); });
}

std::int32_t columnimport_set_size(columnimport_import *import, std::int32_t width,
                                   std::int32_t height) {
    return fill(import, [&](ImportRequest &request) {
        require(width > 0 && height > 0, "The size is not positive.");
        request.width = width;
        request.height = height;
    });
}

std::int32_t columnimport_add_column(columnimport_import *import, const char *name) {
    return fill(import, [&](ImportRequest &request) {
        require(request.appColumns.size() < INT32_MAX, "There are too many application columns.");
        request.appColumns.push_back(hostsWord(name));
    });
}

std::int32_t columnimport_add_alternative(columnimport_import *import, std::int32_t column,
                                          const char *name) {
    return fill(import, [&](ImportRequest &request) {
        std::string word = hostsWord(name);
        entryOf(request, request.alternatives, column).push_back(std::move(word));
    });
}

std::int32_t columnimport_set_required(columnimport_import *import, std::int32_t column,
                                       std::int32_t required) {
    return fill(import, [&](ImportRequest &request) {
        entryOf(request, request.required, column) = yesOrNo(required);
    });
}

std::int32_t columnimport_set_similar(columnimport_import *import, std::int32_t column,
                                      std::int32_t similar) {
    return fill(import, [&](ImportRequest &request) {
        entryOf(request, request.refusesSimilar, column) = !yesOrNo(similar);
    });
}

std::int32_t columnimport_set_saved_match(columnimport_import *import, std::int32_t column,
                                          const char *name, std::int64_t length) {
    return fill(import, [&](ImportRequest &request) {
        entryOf(request, request.savedMatches, column) = bytesOf(name, length);
    });
}

std::int32_t columnimport_set_file(columnimport_import *import, const char *path) {
    return fill(import, [&](ImportRequest &request) {
        request.path = hostsWord(path);
        request.table.reset();
        import->hasSource = true;
    });
}

std::int32_t columnimport_set_delimiter(columnimport_import *import, char delimiter) {
    return fill(import, [&](ImportRequest &request) { request.delimiter = delimiter; });
}

std::int32_t columnimport_set_first_line_holds_titles(columnimport_import *import,
                                                      std::int32_t holds) {
    return fill(import, [&](ImportRequest &request) { request.holdsTitles = yesOrNo(holds); });
}

std::int32_t columnimport_set_table(columnimport_import *import, const char *const *names,
                                    const std::int64_t *lengths, std::int32_t count) {
    return fill(import, [&](ImportRequest &request) {
        require(count >= 0, "The number of columns is negative.");
        require(names != nullptr || count == 0, "The names are a null pointer.");
        std::vector<std::string> columns;
        for (std::int32_t column = 0; column < count; ++column) {
            require(names[column] != nullptr || lengths != nullptr, "The name is a null pointer.");
            columns.push_back(lengths == nullptr ? std::string(names[column])
                                                 : bytesOf(names[column], lengths[column]));
        }
        request.table = std::move(columns);
        import->hasSource = true;
    });
}
