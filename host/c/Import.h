// SPDX-License-Identifier: MIT

#pragma once

#include "host/ImportRequest.h"
#include "host/c/columnimport.h"

#include <exception>
#include <new>
#include <optional>
#include <string>

/// One import of a host, behind the pointer in the C header.
struct columnimport_import {
    columnimport::ImportRequest request;
    bool hasSource = false;
    std::optional<columnimport::ImportResult> result;
    std::int32_t outcome = columnimport_invalid;

    const char *message = ""; ///< of the last call; a literal, or in `words`
    std::string words;

    bool isOpen = false;     ///< while its dialog is open
    bool isUnwanted = false; ///< if the host has freed it meanwhile
};

namespace columnimport {

/// The host's request, with defaults for what it left open.
inline ImportRequest completed(ImportRequest request) {
    if (request.width == 0) {
        request.width = 900;
        request.height = request.table ? 620 : 840;
    }
    request.useSavedMatches = true;
    request.savedMatches.resize(request.appColumns.size());
    request.holdsTitles = request.holdsTitles || request.table;
    request.byteOrderMark = ByteOrderMark::dropped;
    return request;
}

/// Thrown when a host uses a function wrongly.
struct WrongUse {
    const char *sentence;
};

inline void require(bool holds, const char *sentence) {
    if (!holds) {
        throw WrongUse{sentence};
    }
}

/// Runs one call on `import` and lets no exception out: returns `wrongUse` or `failed` instead of
/// the call's result.
template <typename Value, typename Call>
Value answer(columnimport_import *import, Value wrongUse, Value failed, const Call &call) noexcept {
    if (import == nullptr) {
        return wrongUse;
    }
    import->message = "";
    try {
        return call(*import);
    } catch (const WrongUse &wrong) {
        import->message = wrong.sentence;
        return wrongUse;
    } catch (const std::bad_alloc &) {
        import->message = "There is not enough memory.";
    } catch (const std::exception &exception) {
        import->message = "Something unforeseen happened.";
        try {
            import->words = exception.what();
            import->message = import->words.c_str();
        } catch (const std::bad_alloc &) { // then without its words
        }
    } catch (...) {
        import->message = "Something unforeseen happened.";
    }
    return failed;
}

/// The same for a call that returns an outcome.
template <typename Call>
std::int32_t outcomeOf(columnimport_import *import, const Call &call) noexcept {
    return answer<std::int32_t>(import, columnimport_wrong_use, columnimport_failed, call);
}

/// The same for a run: discards the previous result and keeps the outcome.
template <typename Run>
std::int32_t outcomeOfRun(columnimport_import *import, const Run &run) noexcept {
    const std::int32_t outcome = outcomeOf(import, [&run](columnimport_import &filled) {
        require(!filled.isOpen, "The dialog of this import is open.");
        filled.result.reset();
        require(filled.hasSource, "No file and no table was set.");
        return run(filled);
    });
    if (import != nullptr && !import->isOpen) {
        import->outcome = outcome;
    }
    return outcome;
}

/// Checks a position that a host passes in, and returns it as an index.
template <typename List>
std::size_t indexIn(const List &list, std::int32_t position, const char *sentence) {
    require(position >= 0 && static_cast<std::size_t>(position) < list.size(), sentence);
    return static_cast<std::size_t>(position);
}

} // namespace columnimport
