// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <memory>

namespace columnimport {

/// Keeps a person's changes to the matching in order. While a paste waits for the clipboard, the
/// queue is held and later changes wait:
///
///     key       the queue                          row 0 reads
///     Ctrl+V    held until the text arrives        HOLE
///     Ctrl+Z    the undo waits                     HOLE
///               the text arrives: released         the text
///               the undo runs                      HOLE
class ChangeQueue {
public:
    using Change = std::function<void()>;
    using Hold = std::weak_ptr<void>;

    /// Runs `change` at once, or after the waiting changes if the queue is held.
    void run(Change change);

    /// Makes later changes wait. The result expires at `release`, at `clear` or with the queue.
    Hold hold();
    bool isHeld() const { return m_hold != nullptr; }

    /// Ends the hold: runs `first`, then the waiting changes.
    void release(const Change &first);

    /// Ends the hold and drops the waiting changes.
    void clear();

private:
    std::shared_ptr<bool> m_hold;
    std::deque<Change> m_waiting;
};

} // namespace columnimport
