// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <functional>
#include <memory>

namespace columnimport {

/// Keeps a person's changes to the matching in order. While a text is on its way from the clipboard
/// the queue is held, and later changes wait:
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

    /// Runs `change` at once, or after those that are waiting.
    void run(Change change);

    /// Makes later changes wait. The result expires with `release`, `clear` or the queue's end.
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
