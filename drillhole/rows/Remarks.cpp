// SPDX-License-Identifier: MIT

#include "drillhole/rows/Remarks.h"

#include "drillhole/rows/text.h"

#include <algorithm>

namespace drillhole {

constexpr std::size_t mostStretches = 20;

void Remarks::add(const std::string &text, std::size_t line) {
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

std::vector<Remark> Remarks::byKind() const {
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

std::string linesOf(std::size_t first, std::size_t last) {
    return std::to_string(first) + (first == last ? "" : '-' + std::to_string(last));
}

} // namespace drillhole
