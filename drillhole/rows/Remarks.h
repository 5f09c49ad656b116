// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/text.h"

#include <algorithm>

#include <boost/icl/interval_set.hpp>

namespace drillhole {

/// Something to tell the user, and the lines it is about: "7", "7-9", "3, 7-9, ...".
struct Remark {
    std::string lines;
    std::string text;
};

/// "7" or "7-9".
inline std::string linesOf(std::size_t first, std::size_t last) {
    return std::to_string(first) + (first == last ? "" : '-' + std::to_string(last));
}

/// Remarks of a few kinds on many rows.
class Remarks {
public:
    void add(const std::string &text, std::size_t line) {
        auto found = std::find_if(m_kinds.begin(), m_kinds.end(),
                                  [&](const Kind &each) { return each.text == text; });
        if (found == m_kinds.end()) {
            found = m_kinds.insert(found, {text, 0, {}});
        }
        ++found->count;
        if (found->lines.iterative_size() <= mostStretches) {
            found->lines.add(line);
        }
    }

    /// One of each kind: how often it was made, and on which lines.
    std::vector<Remark> byKind() const {
        std::vector<Remark> remarks;
        for (const Kind &kind : m_kinds) {
            std::string lines;
            std::size_t count = 0;
            for (const auto &stretch : kind.lines) {
                lines += count == 0 ? "" : ", ";
                lines += count++ == mostStretches ? "..." : linesOf(first(stretch), last(stretch));
            }
            remarks.push_back({lines, kind.text + ": " + countOf(kind.count, "row")});
        }
        return remarks;
    }

private:
    static constexpr std::size_t mostStretches = 20;
    struct Kind {
        std::string text;
        std::size_t count;
        boost::icl::interval_set<std::size_t> lines; // the first stretches of them
    };
    std::vector<Kind> m_kinds;
};

} // namespace drillhole
