// SPDX-License-Identifier: MIT

#include "drillhole/rows/CsvFile.h"

#include "drillhole/rows/Fault.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <utility>

#include <boost/algorithm/string/replace.hpp>

namespace drillhole {

namespace {

constexpr std::size_t blockSize = 65'536;
constexpr std::size_t longestRow = 4'194'304;
constexpr std::size_t mostFields = 100'000;

Fault unreadable(const std::string &path, int error) {
    std::string advice = std::strerror(error) + std::string("; copy the file to another disk.");
    if (error == ENOENT || error == ENOTDIR) {
        advice = "There is no such file; choose another one.";
    } else if (error == EACCES) {
        advice = "You may not read it; ask its owner for access, or copy it to a folder of yours.";
    } else if (error == EISDIR || error == ENOTSUP) {
        advice = "It is no file but a folder or a device; choose a text file.";
    }
    return Fault("The file " + path + " can't be read. " + advice);
}

/// Throws a Fault for a file that the dialog would show as one line of broken text.
void requireText(std::string_view head) {
    if (head.find('\0') != std::string_view::npos) {
        throw Fault("The file is no text, or text in UTF-16. Save it as CSV in UTF-8, and import "
                    "the file again.");
    }
    if (head.find('\r') < head.size() - 1 && head.find('\n') == std::string_view::npos) {
        throw Fault("The file's lines end in carriage returns only, as those of old Macintosh "
                    "programs. Save it with another line end, and import the file again.");
    }
}

std::string_view firstLineOf(std::string_view text) {
    return text.substr(0, std::min(text.find('\n'), text.size()));
}

auto delimitersIn(std::string_view line) {
    return std::count_if(line.begin(), line.end(), [](char byte) {
        return std::string_view(",;\t|").find(byte) != std::string_view::npos;
    });
}

/// A line behind # is a comment unless it is cut like the next one: that is one of titles.
Preamble preambleOf(std::string_view head) {
    Preamble preamble;
    for (std::string_view line = firstLineOf(head); !line.empty(); line = firstLineOf(head)) {
        const std::string_view next = head.substr(std::min(line.size() + 1, head.size()));
        const bool isNote =
            preamble.lineCount == 0 && line.substr(0, 4) == "sep=" && line.size() > 4;
        const bool isTitles =
            delimitersIn(line) > 0 && delimitersIn(line) == delimitersIn(firstLineOf(next));
        if (!isNote && (line.front() != '#' || isTitles)) {
            break;
        }
        preamble.delimiter = isNote ? std::optional(line[4]) : preamble.delimiter;
        preamble.size += head.size() - next.size();
        ++preamble.lineCount;
        head = next;
    }
    return preamble;
}

/// Whether a quoted field has a line that is as rich in delimiters as a row: a quote is missing
/// then.
bool holdsARow(std::string_view text, char delimiter, std::size_t width) {
    for (std::size_t end = text.find('\n'); width > 2 && end < text.size();) {
        text.remove_prefix(end + 1);
        end = std::min(text.find('\n'), text.size());
        const auto delimiters = std::count(text.data(), text.data() + end, delimiter);
        if (static_cast<std::size_t>(delimiters) + 1 >= width) {
            return true;
        }
    }
    return false;
}

} // namespace

FileStamp stampOf(const std::string &path) {
    try {
        // Only what is a file has a size: a pipe could keep the reader waiting for ever.
        return {std::filesystem::file_size(path), std::filesystem::last_write_time(path)};
    } catch (const std::filesystem::filesystem_error &error) {
        throw unreadable(path, error.code().value());
    }
}

CsvFile::CsvFile(const std::string &path, char delimiter)
    : m_path(path), m_stamp(stampOf(path)), m_file(path, std::ios::binary), m_delimiter(delimiter) {
    if (delimiter == '\n' || delimiter == '\r') {
        throw Fault("A line end can't be the delimiter. Type another one in the dialog.");
    }
    if (!m_file) {
        throw unreadable(path, errno);
    }
    readOn();
    m_end = m_text.rfind("\xEF\xBB\xBF", 0) == 0 ? 3 : 0;
    const std::string_view head = std::string_view(m_text).substr(m_end);
    requireText(head);
    m_preamble = preambleOf(head);
    m_end += m_preamble.size;
    m_line += m_preamble.lineCount;
    // The titles are to be whole.
    while (m_text.find('\n', m_end) == std::string::npos && m_text.size() < longestRow &&
           readOn()) {
    }
}

bool CsvFile::next(Row &row) {
    do {
        m_begin = m_end;
        if (m_begin == m_text.size() && !readOn()) {
            if (m_read != m_stamp.first || stampOf(m_path) != m_stamp) {
                throw Fault("The file " + m_path +
                            " was changed while it was read. Nothing was "
                            "imported; import it again.");
            }
            return false;
        }
        m_isWhole = false;
        while (!endsWithin(row)) {
            m_isWhole = m_text.size() - m_begin >= longestRow || !readOn();
        }
        const char *text = m_text.data();
        const auto lineEnds = std::count(text + m_begin, text + m_end - 1, '\n');
        row.firstLine = m_line;
        row.lastLine = m_line + static_cast<std::size_t>(lineEnds);
        m_line = row.lastLine + 1;
    } while (std::all_of(row.fields.begin(), row.fields.end(),
                         [](std::string_view field) { return field.empty(); }));
    m_width = m_width == 0 ? row.fields.size() : m_width;
    return true;
}

double CsvFile::share() const {
    return m_stamp.first > 0 ? static_cast<double>(m_read) / static_cast<double>(m_stamp.first) : 1;
}

// The dialog counts a carriage return among the blanks, and a line feed alone ends a line.
bool CsvFile::isBlank(char byte) const {
    return (byte == ' ' || byte == '\t' || byte == '\r') && byte != m_delimiter;
}

const char *CsvFile::behindBlanks(const char *at, const char *end) const {
    return std::find_if_not(at, end, [this](char byte) { return isBlank(byte); });
}

/// Reads on behind the present row's text: as much again as it has, since it is cut anew.
bool CsvFile::readOn() {
    m_text.erase(0, m_begin);
    m_end -= std::exchange(m_begin, 0);
    const std::size_t had = m_text.size();
    m_text.resize(had + std::max(had, blockSize));
    m_file.read(m_text.data() + had, static_cast<std::streamsize>(m_text.size() - had));
    if (m_file.bad()) {
        throw unreadable(m_path, errno);
    }
    const auto count = static_cast<std::size_t>(m_file.gcount());
    m_text.resize(had + count);
    m_read += count;
    return count > 0;
}

/// Cuts the row, or returns false if the text has to go on for that.
bool CsvFile::endsWithin(Row &row) {
    m_ownTexts.clear();
    row.fields.clear();
    row.refusal = nullptr;
    const char *begin = m_text.data() + m_begin;
    const char *end = m_text.data() + m_text.size();
    const char *at = begin;
    do {
        at = behindBlanks(at, end);
        if (at == end || *at != '"' || m_delimiter == '"') {
            takePlain(row, at, end);
        } else {
            takeQuoted(row, at, end);
        }
        if (at == end && !m_isWhole) {
            return false;
        }
        if (row.fields.size() > mostFields) {
            refuse(row, "more than 100,000 fields", begin);
        }
    } while (row.refusal == nullptr && at != end && *at++ != '\n');
    if (row.refusal == nullptr) {
        m_end = static_cast<std::size_t>(at - m_text.data());
        if (m_end - m_begin >= longestRow) {
            refuse(row, "longer than 4 MiB", at - 1);
        }
    }
    return m_isWhole || m_text[m_end - 1] == '\n';
}

void CsvFile::takeQuoted(Row &row, const char *&at, const char *end) {
    const char *opening = at++;
    const char *begin = at;
    while ((at = std::find(at, end, '"')) != end && at + 1 != end && at[1] == '"') {
        at += 2;
    }
    const char *closing = at;
    at = closing == end ? end : behindBlanks(closing + 1, end);
    const std::string_view text(begin, static_cast<std::size_t>(closing - begin));
    if (closing == end) {
        refuse(row, "a double quote opens here and does not close", opening);
    } else if (at != end && *at != m_delimiter && *at != '\n') {
        refuse(row, "text follows a double quote that closes a field", opening);
    } else if (holdsARow(text, m_delimiter, m_width)) {
        refuse(row, "a double quote opens here and closes behind other rows", opening);
    } else if (text.find('"') == std::string_view::npos) {
        row.fields.push_back(text);
    } else {
        row.fields.emplace_back(
            m_ownTexts.emplace_back(boost::replace_all_copy(std::string(text), "\"\"", "\"")));
    }
}

void CsvFile::takePlain(Row &row, const char *&at, const char *end) const {
    const char *begin = at;
    at = std::find_if(at, end, [this](char byte) { return byte == m_delimiter || byte == '\n'; });
    const char *last = at;
    while (last != begin && isBlank(last[-1])) {
        --last;
    }
    if (last != begin || m_delimiter != ' ') {
        row.fields.emplace_back(begin, static_cast<std::size_t>(last - begin));
    }
}

/// Leaves the row with its text up to the end of the line that `from` stands in.
void CsvFile::refuse(Row &row, const char *reason, const char *from) {
    const auto place = static_cast<std::size_t>(from - m_text.data());
    const std::size_t lineEnd = std::min(m_text.find('\n', place), m_text.size());
    if (lineEnd == m_text.size() && m_isWhole) {
        m_file.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
        m_read += static_cast<std::size_t>(m_file.gcount());
    }
    m_end = std::min(lineEnd + 1, m_text.size());
    row.refusal = reason;
    row.fields.assign(1, std::string_view(m_text).substr(m_begin, lineEnd - m_begin));
}

} // namespace drillhole
