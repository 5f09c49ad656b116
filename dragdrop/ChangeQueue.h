// SPDX-License-Identifier: MIT

#pragma once

#include <cassert>
#include <deque>
#include <functional>
#include <memory>
#include <utility>

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
    void run(Change change) {
        if (isHeld()) {
            m_waiting.push_back(std::move(change));
        } else {
            change();
        }
    }

    /// Makes later changes wait. The result expires at `release`, at `clear` or with the queue.
    Hold hold() {
        assert(!isHeld());
        m_hold = std::make_shared<bool>();
        return m_hold;
    }
    bool isHeld() const { return m_hold != nullptr; }

    /// Ends the hold: runs `first`, then the waiting changes. Each of them may hold the queue
    /// again, and then the others keep waiting.
    void release(const Change &first) {
        m_hold.reset();
        first();
        while (!isHeld() && !m_waiting.empty()) {
            const Change next = std::move(m_waiting.front());
            m_waiting.pop_front();
            next();
        }
    }

    /// Ends the hold and drops the waiting changes.
    void clear() {
        m_hold.reset();
        m_waiting.clear();
    }

private:
    std::shared_ptr<bool> m_hold;
    std::deque<Change> m_waiting;
};

} // namespace columnimport
