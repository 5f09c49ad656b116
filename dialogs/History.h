// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace columnimport {

/// The changes that Ctrl+Z undoes and Ctrl+Y redoes.
///
/// A step swaps the state that it keeps with the present one: run once it undoes, run again it
/// redoes. A write into rows is a step that keeps their matches. A refresh starts a new history,
/// with itself as the first step, which keeps everything that the refresh replaced:
///
///     a person                  steps                              Ctrl+Z then restores
///     drops Au on gold          [gold]                             gold as it was
///     clears three rows         [gold] [three rows]                the three rows
///     types another delimiter   [refresh]                          the old delimiter, columns and
///                                                                  rows, with Au at gold
///     drops Cu on copper        [refresh] [copper]                 copper as it was
class History {
public:
    using Exchange = std::function<void()>;

    /// Appends a step that has just been done. Drops the steps that are undone.
    void add(Exchange step);

    /// Forgets all steps.
    void clear();

    /// Undoes the last step or redoes the next one, if there is one.
    void undo();
    void redo();

private:
    std::vector<Exchange> m_steps;
    std::size_t m_done = 0; // steps that are not undone
};

} // namespace columnimport
