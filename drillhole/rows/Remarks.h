// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <boost/icl/interval_set.hpp>

namespace drillhole {

/// Something to tell the user, and the lines it is about: "7", "7-9", "3, 7-9, ...".
struct Remark {
    std::string lines;
    std::string text;
};

/// Remarks of a few kinds on many rows.
class Remarks {
public:
    void add(const std::string &text, std::size_t line);

    /// One of each kind: how often it was made, and on which lines.
    std::vector<Remark> byKind() const;

private:
    struct Kind {
        std::string text;
        std::size_t count;
        boost::icl::interval_set<std::size_t> lines; // the first stretches of them
    };
    std::vector<Kind> m_kinds;
};

/// "7" or "7-9".
std::string linesOf(std::size_t first, std::size_t last);

} // namespace drillhole
