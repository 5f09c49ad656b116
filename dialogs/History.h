// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace columnimport {

/// What Ctrl+Z takes back and Ctrl+Y does again.
///
/// A step is an exchange: it puts the state that it keeps in the place of the present one and keeps
/// that instead. Carried out once it undoes, and once more it does again. What is written into
/// rows is a step that keeps these rows' texts. A refresh, which fills both lists anew, begins the
/// history anew, with itself as the first step; that one keeps all that the refresh replaced:
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

    /// Appends a step that has just been done. What was undone before it can't be done again.
    void add(Exchange step);

    /// Forgets all steps.
    void clear();

    /// Undoes the last step that is not undone, or does the next one again, if there is one.
    void undo();
    void redo();

private:
    std::vector<Exchange> m_steps;
    std::size_t m_done = 0; // how many are not undone
};

} // namespace columnimport
