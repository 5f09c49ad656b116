// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <memory>

namespace columnimport {

/// The order of a person's changes to the matching. While a text is on its way from the clipboard
/// the queue is held, and later changes wait behind it:
///
///     a person       the queue                        row 0 reads
///     Control, V     held for the text                HOLE
///     Control, Z     the undo waits                   HOLE
///                    the text comes: released         the text
///                    the undo runs                    HOLE
class ChangeQueue {
public:
    using Change = std::function<void()>;
    using Hold = std::weak_ptr<void>;

    /// Makes `change` at once, or after those that wait already.
    void run(Change change);

    /// Makes later changes wait. The result expires with `release`, `clear` or the queue's end.
    Hold hold();
    bool isHeld() const { return m_hold != nullptr; }

    /// Ends the hold: makes `first`, then the changes that wait.
    void release(const Change &first);

    /// Ends the hold and drops the changes that wait.
    void clear();

private:
    std::shared_ptr<bool> m_hold;
    std::deque<Change> m_waiting;
};

} // namespace columnimport
