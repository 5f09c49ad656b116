// SPDX-License-Identifier: MIT

// Calls the functions of the C header in any order with any arguments. None crashes, and for a
// table without alternatives and saved matches the proposal is the matcher's.

#include <functional>
#include <memory>

#include <fuzzer/FuzzedDataProvider.h>

#include "host/c/columnimport.h"
#include "matching/matchColumns.h"
#include "tests/fuzz/require.h"

namespace {

using Names = std::vector<std::string>;

/// The content of an import, as long as its proposal is the matcher's.
struct Filled {
    Names app;
    Names table;
    bool isPlain = false;
};

void call(columnimport_import *import, FuzzedDataProvider &data, Filled &filled) {
    const std::string text = data.ConsumeRandomLengthString(30);
    const char *word = data.ConsumeBool() ? text.c_str() : nullptr;
    const auto length = word == nullptr ? 1 : static_cast<std::int64_t>(text.size());
    const auto number = data.ConsumeIntegralInRange<std::int32_t>(-2, 4);
    Names names;
    std::vector<const char *> pointers;
    std::vector<std::int64_t> lengths;
    const std::function<void()> calls[] = {
        [&] {
            if (columnimport_add_column(import, word) == columnimport_ok) {
                filled.app.emplace_back(word);
            }
        },
        [&] {
            for (std::int32_t left = number; left > 0; --left) {
                names.push_back(data.ConsumeRandomLengthString(20));
            }
            for (const std::string &name : names) {
                pointers.push_back(name.data());
                lengths.push_back(static_cast<std::int64_t>(name.size()));
            }
            if (columnimport_set_table(import, pointers.data(), lengths.data(), number) ==
                columnimport_ok) {
                filled.table = names;
            }
        },
        [&] {
            if (columnimport_propose(import) != columnimport_ok || !filled.isPlain) {
                return;
            }
            std::vector<std::int32_t> positions;
            while (positions.size() < filled.app.size()) {
                positions.push_back(columnimport_match_position(
                    import, static_cast<std::int32_t>(positions.size())));
            }
            require(positions == columnimport::matchColumns(filled.app, filled.table),
                    "the proposal is the matcher's");
            for (std::size_t app = 0; app < positions.size(); ++app) {
                const auto column = static_cast<std::int32_t>(app);
                const bool isGuess =
                    columnimport_match_origin(import, column) == columnimport_origin_similar;
                require(isGuess == (columnimport_match_score(import, column) > 0.4),
                        "a guess has a score, and nothing else");
            }
        },
        [&] { columnimport_set_title(import, word); },
        [&] { columnimport_set_size(import, number, number); },
        [&] { columnimport_set_required(import, number, 1); },
        [&] { columnimport_set_delimiter(import, static_cast<char>(number)); },
        [&] { columnimport_set_first_line_holds_titles(import, number); },
        [&] { columnimport_file_problem(import); },
        [&] { columnimport_likely_delimiter(import); },
        [&] { columnimport_match_origin(import, number); },
        [&] { columnimport_match_score(import, number); },
        [&] { columnimport_match_field(import, number); },
        [&] { columnimport_match_name(import, number, &lengths.emplace_back()); },
        [&] { columnimport_source_column(import, number, &lengths.emplace_back()); },
        [&] { columnimport_message(import); },
    };
    const std::function<void()> callsBeyondTheMatcher[] = {
        [&] { columnimport_add_alternative(import, number, word); },
        [&] { columnimport_set_saved_match(import, number, word, length); },
        [&] { columnimport_set_file(import, word); },
        [&] { columnimport_set_similar(import, number, 0); },
    };
    if (data.ConsumeIntegralInRange(0, 4) == 0) {
        filled.isPlain = false;
        data.PickValueInArray(callsBeyondTheMatcher)();
    } else {
        data.PickValueInArray(calls)();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    const std::unique_ptr<columnimport_import, decltype(&columnimport_free)> import(
        columnimport_new(), columnimport_free);
    columnimport_set_table(import.get(), nullptr, nullptr, 0);
    Filled filled{{}, {}, true};
    while (data.remaining_bytes() > 0) {
        call(import.get(), data, filled);
    }
    return 0;
}
