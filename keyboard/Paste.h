// SPDX-License-Identifier: MIT

#pragma once

#include "dragdrop/ChangeQueue.h"

#include <functional>

#include <wx/string.h>
#include <wx/timer.h>

namespace columnimport {

/// A text on its way from the clipboard into the dialog. Its owner may be slow or hang: the dialog
/// stays responsive, and the queue of changes is held until the text comes, for two seconds at
/// most. Then the paste and the changes that wait are dropped, and a bell rings.
class Paste {
public:
    /// `queue` must outlive this object.
    explicit Paste(ChangeQueue &queue);

    /// Requests the text in its turn and passes it to `take`, unless there is none.
    void start(const std::function<void(const wxString &)> &take);

private:
    void request(const std::function<void(const wxString &)> &take);

    ChangeQueue &m_queue;
    ChangeQueue::Hold m_hold;
    wxTimer m_limit;
};

} // namespace columnimport
