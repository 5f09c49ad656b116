// SPDX-License-Identifier: MIT

#include "delimited/quotedFields.h"
#include "delimited/splitLine.h"

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

using namespace columnimport;
using Fields = std::vector<std::string>;
using Numbers = std::vector<std::int32_t>;

namespace {

constexpr const char *letters = "abcdefghijklmnopqrstuvwxyz";

bool isBlank(const std::string &text) {
    return trimLeft(text, blankChars).empty();
}

/// The differences between readers of rows.
struct Reader {
    bool skipsBlanks; // before a quote
    bool givesUp;     // at wrong quotes, and reads no further field
    bool takesRuns;   // of a blank delimiter for one
    bool endsAtReturn;
};

/// The fields of `line`, read byte by byte.
Fields read(const std::string &line, char delimiter, const Reader &reader) {
    Fields fields(1);
    enum { plain, quoted, closed, spoilt } state = plain;
    for (std::size_t i = 0; i < line.size(); ++i) {
        std::string &field = fields.back();
        if (state == quoted) {
            if (line[i] == '"' && line[i + 1] == '"') {
                field += line[i++];
            } else if (line[i] == '"') {
                state = closed;
            }
        } else if (line[i] == delimiter) {
            if (state == spoilt && reader.givesUp) {
                break;
            }
            state = plain;
            fields.emplace_back();
            continue;
        } else if (line[i] == '\r' && reader.endsAtReturn) {
            fields.pop_back();
            break;
        } else if (state == closed && !isBlank(line.substr(i, 1))) {
            state = spoilt;
        } else if (line[i] == '"' && delimiter != '"' &&
                   (reader.skipsBlanks ? isBlank(field) : field.empty())) {
            state = quoted;
        }
        field += line[i];
    }
    if (state == quoted && reader.givesUp) {
        fields.back().resize(std::min(fields.back().find(delimiter), fields.back().size()));
    }
    if (reader.takesRuns && delimiter == ' ') {
        fields.erase(std::remove_if(fields.begin(), fields.end(), isBlank), fields.end());
    }
    return fields;
}

/// The number of the field that has the first and last letters of `column` for each reader; -1 if
/// the readers disagree on it or on the fields before.
std::int32_t agreedField(const std::vector<Fields> &readings, const std::string &column) {
    std::set<Fields> before;
    for (const Fields &fields : readings) {
        for (const std::size_t place :
             {column.find_first_of(letters), column.find_last_of(letters)}) {
            const auto found = std::find_if(fields.begin(), fields.end(),
                                            [letter = column[place]](const std::string &field) {
                                                return field.find(letter) != std::string::npos;
                                            });
            if (found == fields.end()) {
                return -1;
            }
            before.emplace(fields.begin(), found);
        }
    }
    return before.size() == 1 ? static_cast<std::int32_t>(before.begin()->size()) : -1;
}

} // namespace

TEST(QuotedFields, HaveANumberForEachEmptyColumn) {
    EXPECT_EQ(quotedFields(" a,,b, ", ','), (Numbers{0, 1, 2, 3}));
}

// Each text byte is another letter, so that a column can be found in a reader's fields.
TEST(QuotedFields, AreTheFieldsOnWhichAllReadersAgree) {
    std::mt19937 random(26); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same lines each time
    for (const char delimiter : {',', '\t', ' ', '"'}) {
        const std::string bytes = std::string("xx\"\" \r") + delimiter + delimiter;
        for (int i = 0; i < 1500; ++i) {
            std::string line;
            for (std::size_t length = random() % 14; line.size() < length;) {
                const char byte = bytes[random() % bytes.size()];
                line += byte == 'x' ? static_cast<char>('a' + line.size()) : byte;
            }
            line = trimRight(line, blankChars);
            Fields columns;
            splitLine(line, columns, std::string(1, delimiter));
            std::vector<Fields> readings;
            for (unsigned reader = 0; reader < 16; ++reader) {
                const auto is = [reader](unsigned bit) { return (reader & bit) != 0; };
                readings.push_back(read(line, delimiter, {is(1), is(2), is(4), is(8)}));
            }
            const Numbers numbers = quotedFields(line, delimiter);
            ASSERT_EQ(numbers.size(), columns.size()) << line;
            for (std::size_t column = 0; column < columns.size(); ++column) {
                if (columns[column].find_first_of(letters) != std::string::npos) {
                    ASSERT_EQ(numbers[column], agreedField(readings, columns[column]))
                        << testing::PrintToString(line) << " at " << column;
                }
            }
        }
    }
}
