// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace columnimport {

/// The changes that Ctrl+Z undoes and Ctrl+Y redoes.
///
/// A step is an exchange: it swaps the state that it keeps with the present one. Run once it
/// undoes, run again it redoes. A write into rows is a step that keeps the rows' matches. A refresh
/// starts the history afresh, with itself as the first step, which keeps all that the refresh
/// replaced:
///
///     a person                  steps                              Ctrl+Z then gives
///     drops Au on gold          [gold]                             gold as it was
///     clears three rows         [gold] [three rows]                the three rows
///     types another delimiter   [refresh]                          the old delimiter, columns and
///                                                                  rows, with Au at gold
///     drops Cu on copper        [refresh] [copper]                 copper as it was
class History {
public:
    using Exchange = std::function<void()>;

    /// Appends a step that has just been done. Steps undone before it are lost.
    void add(Exchange step);

    /// Forgets all steps.
    void clear();

    /// Undoes the last step, or redoes the next one, if there is one.
    void undo();
    void redo();

private:
    std::vector<Exchange> m_steps;
    std::size_t m_done = 0; // how many are not undone
};

} // namespace columnimport
