// SPDX-License-Identifier: MIT

#include "dialogs/History.h"

#include <utility>

namespace columnimport {

void History::add(Exchange step) {
    m_steps.resize(m_done);
    m_steps.push_back(std::move(step));
    ++m_done;
}

void History::clear() {
    m_steps.clear();
    m_done = 0;
}

void History::undo() {
    if (m_done > 0) {
        m_steps[--m_done]();
    }
}

void History::redo() {
    if (m_done < m_steps.size()) {
        m_steps[m_done++]();
    }
}

} // namespace columnimport
