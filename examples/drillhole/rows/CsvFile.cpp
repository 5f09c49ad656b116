// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/CsvFile.h"

#include "examples/drillhole/rows/Fault.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace drillhole {

namespace {

constexpr std::size_t headSize = 65'536;
constexpr std::size_t longestRow = 4'194'304;
constexpr std::size_t mostFields = 100'000;

Fault unreadable(const std::string &path, int error) {
    std::string advice = std::strerror(error) + std::string("; copy the file to another disk.");
    if (error == ENOENT || error == ENOTDIR) {
        advice = "There is no such file; choose another one.";
    } else if (error == EACCES) {
        advice = "You may not read it; ask its owner for access, or copy it to a folder of yours.";
    }
    return Fault("The file " + path + " can't be read. " + advice);
}

/// Throws a Fault for a file that the dialog would show as one line of broken text.
void requireText(std::string_view head) {
    const char *fault = nullptr;
    if (head.find('\0') != std::string_view::npos) {
        fault = "The file is no text, or text in UTF-16. Save it as CSV in UTF-8";
    } else if (head.substr(0, 4) == "sep=") {
        fault = "The first line is a spreadsheet's note of its delimiter. Delete that line";
    } else if (head.find('\r') < head.size() - 1 && head.find('\n') == std::string_view::npos) {
        fault =
            "The file's lines end in carriage returns only, as those of old Macintosh programs. "
            "Save it with another line end";
    }
    if (fault != nullptr) {
        throw Fault(fault + std::string(", and import the file again."));
    }
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
    std::error_code failure;
    const auto status = std::filesystem::status(path, failure);
    // A pipe or a device could keep the reader waiting for ever.
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        throw Fault("The file " + path +
                    " can't be read. It is no file but a folder or a device; "
                    "choose a text file.");
    }
    FileStamp stamp;
    if (!failure) {
        stamp.first = std::filesystem::file_size(path, failure);
        stamp.second = std::filesystem::last_write_time(path, failure);
    }
    if (failure) {
        throw unreadable(path, failure.value());
    }
    return stamp;
}

CsvFile::CsvFile(const std::string &path, char delimiter, std::size_t chunk)
    : m_path(path), m_stamp(stampOf(path)), m_file(path, std::ios::binary), m_delimiter(delimiter),
      m_chunk(chunk) {
    if (delimiter == '\n' || delimiter == '\r') {
        throw Fault("A line end can't be the delimiter. Type another one in the dialog.");
    }
    if (!m_file) {
        throw unreadable(path, errno);
    }
    while (m_text.size() < headSize && m_text.find('\n') == std::string::npos && readOn()) {
    }
    if (rest().substr(0, 3) == "\xEF\xBB\xBF") {
        m_end = 3;
    }
    requireText(std::string_view(m_text).substr(m_end));
}

bool CsvFile::next(Row &row) {
    do {
        m_begin = m_end;
        if (m_skipsLine) {
            skipLine();
        }
        m_isTooLong = false;
        while (!endsWithin(row)) {
            m_isTooLong = m_text.size() - m_begin >= longestRow;
            if (!m_isTooLong) {
                readOn();
            }
        }
        if (m_end == m_begin) {
            if (m_read != m_stamp.first || stampOf(m_path) != m_stamp) {
                throw Fault("The file " + m_path +
                            " was changed while it was read. Nothing was "
                            "imported; import it again.");
            }
            return false;
        }
        const auto *text = m_text.data();
        const auto lineEnds = std::count(text + m_begin, text + m_end - 1, '\n');
        row.firstLine = m_line;
        row.lastLine = m_line + static_cast<std::size_t>(lineEnds);
        m_line = row.lastLine + (text[m_end - 1] == '\n' ? 1 : 0);
    } while (std::all_of(row.fields.begin(), row.fields.end(),
                         [](std::string_view field) { return field.empty(); }));
    m_width = m_width == 0 ? row.fields.size() : m_width;
    return true;
}

void CsvFile::putBack(const Row &row) {
    m_end = m_begin;
    m_line = row.firstLine;
}

double CsvFile::share() const {
    return m_stamp.first > 0 ? static_cast<double>(m_read) / static_cast<double>(m_stamp.first) : 1;
}

const char *CsvFile::behindBlanks(const char *at, const char *end) const {
    // The dialog counts a carriage return among the blanks, and a line feed alone ends a line.
    while (at != end && (*at == ' ' || *at == '\t' || *at == '\r') && *at != m_delimiter) {
        ++at;
    }
    return at;
}

bool CsvFile::readOn() {
    m_text.erase(0, m_begin);
    m_end -= std::min(m_end, m_begin);
    m_begin = 0;
    const std::size_t had = m_text.size();
    m_text.resize(had + std::max(m_chunk, had)); // a row is cut anew each time
    m_file.read(&m_text[had], static_cast<std::streamsize>(m_text.size() - had));
    if (m_file.bad()) {
        throw unreadable(m_path, errno);
    }
    m_text.resize(had + static_cast<std::size_t>(m_file.gcount()));
    m_read += m_text.size() - had;
    m_isAtEnd = m_text.size() == had;
    return !m_isAtEnd;
}

/// Skips what is left of a line that began before.
void CsvFile::skipLine() {
    std::size_t lineEnd = m_text.find('\n', m_begin);
    for (; lineEnd == std::string::npos; lineEnd = m_text.find('\n')) {
        m_begin = m_text.size();
        if (!readOn()) {
            return;
        }
    }
    m_begin = lineEnd + 1;
    m_skipsLine = false;
    ++m_line;
}

/// Cuts the row, or returns false if the text has to go on for that.
bool CsvFile::endsWithin(Row &row) {
    m_ownTexts.clear();
    row.fields.clear();
    row.refusal = nullptr;
    const char *at = m_text.data() + m_begin;
    const char *end = m_text.data() + m_text.size();
    while (true) {
        at = behindBlanks(at, end);
        const bool isQuoted = at != end && *at == '"' && m_delimiter != '"';
        if (!(isQuoted ? takeQuoted(row, at, end) : takePlain(row, at, end))) {
            return false;
        }
        if (row.refusal != nullptr) {
            return true;
        }
        if (row.fields.size() > mostFields) {
            refuse(row, "more than 100,000 fields", m_text.data() + m_begin);
            return true;
        }
        if (at == end || *at++ == '\n') {
            m_end = static_cast<std::size_t>(at - m_text.data());
            return true;
        }
    }
}

bool CsvFile::takeQuoted(Row &row, const char *&at, const char *end) {
    const char *opening = at++;
    const char *begin = at;
    bool isDoubled = false;
    while ((at = std::find(at, end, '"')) != end && at + 1 != end && at[1] == '"') {
        isDoubled = true;
        at += 2;
    }
    const char *closing = at;
    at = closing == end ? end : behindBlanks(closing + 1, end);
    if (at == end && !m_isAtEnd && !m_isTooLong) {
        return false;
    }
    const std::string_view text(begin, static_cast<std::size_t>(closing - begin));
    if (closing == end) {
        refuse(row, "a double quote opens here and does not close", opening);
    } else if (at != end && *at != m_delimiter && *at != '\n') {
        refuse(row, "text follows a double quote that closes a field", opening);
    } else if (holdsARow(text, m_delimiter, m_width)) {
        refuse(row, "a double quote opens here and closes behind other rows", opening);
    } else if (isDoubled) {
        std::string &own = m_ownTexts.emplace_back();
        for (std::size_t i = 0; i < text.size(); i += text[i] == '"' ? 2 : 1) {
            own += text[i];
        }
        row.fields.emplace_back(own);
    } else {
        row.fields.push_back(text);
    }
    return true;
}

bool CsvFile::takePlain(Row &row, const char *&at, const char *end) {
    const char *begin = at;
    while (at != end && *at != m_delimiter && *at != '\n') {
        ++at;
    }
    if (at == end && !m_isAtEnd) {
        if (m_isTooLong) {
            refuse(row, "longer than 4 MiB", begin);
        }
        return m_isTooLong;
    }
    const char *last = at;
    while (last != begin && behindBlanks(last - 1, last) == last) {
        --last;
    }
    if (last != begin) {
        row.fields.emplace_back(begin, static_cast<std::size_t>(last - begin));
    } else if (m_delimiter != ' ') {
        row.fields.emplace_back();
    }
    return true;
}

/// Leaves the row with its text up to the end of the line that `from` stands in.
void CsvFile::refuse(Row &row, const char *reason, const char *from) {
    const std::size_t lineEnd = m_text.find('\n', static_cast<std::size_t>(from - m_text.data()));
    m_skipsLine = lineEnd == std::string::npos && !m_isAtEnd;
    m_end = lineEnd == std::string::npos ? m_text.size() : lineEnd + 1;
    row.refusal = reason;
    row.fields.assign(1, rest().substr(0, std::min(lineEnd, m_text.size()) - m_begin));
}

} // namespace drillhole
