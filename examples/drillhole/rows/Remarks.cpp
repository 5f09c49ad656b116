// SPDX-License-Identifier: MIT

#include "examples/drillhole/rows/Remarks.h"

#include "examples/drillhole/rows/text.h"

#include <algorithm>

namespace drillhole {

namespace {

constexpr std::size_t mostStretches = 20;

} // namespace

void Remarks::add(const std::string &kind, std::size_t line) {
    auto found = std::find_if(m_kinds.begin(), m_kinds.end(),
                              [&](const Kind &each) { return each.text == kind; });
    if (found == m_kinds.end()) {
        found = m_kinds.insert(found, {kind, 0, {}, 1, line, line});
    }
    ++found->count;
    if (line > found->last + 1) {
        if (found->stretches++ < mostStretches) {
            found->lines += linesOf(found->first, found->last) + ", ";
        }
        found->first = line;
    }
    found->last = line;
}

std::vector<Remark> Remarks::byKind() const {
    std::vector<Remark> remarks;
    for (const Kind &kind : m_kinds) {
        remarks.push_back(
            {kind.lines + (kind.stretches > mostStretches ? "..." : linesOf(kind.first, kind.last)),
             kind.text + ": " + countOf(kind.count, "row")});
    }
    return remarks;
}

std::string linesOf(std::size_t first, std::size_t last) {
    return std::to_string(first) + (first == last ? "" : '-' + std::to_string(last));
}

} // namespace drillhole
