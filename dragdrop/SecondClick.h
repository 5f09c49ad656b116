// SPDX-License-Identifier: MIT

#pragma once

namespace columnimport {

/// Distinguishes a double click on a row from a drag. A double click is two clicks on one row, and
/// counts when the button goes up. A press that begins a drag is not a click.
///
///     press AA, release, press AA again, release           a double click
///     press AA, release, press AA again, drag              a click and a drag
///     drag AA, press AA, release                           a drag and a click
class SecondClick {
public:
    /// Call it when the system reports the second press of a double click.
    void pressAgain(int row) { m_isPressedAgain = row >= 0 && row == m_clicked; }

    /// Whether the release over `row` completes a double click.
    bool release(int row) {
        const bool isSecond = m_isPressedAgain && row == m_clicked;
        m_clicked = isSecond ? none : row;
        m_isPressedAgain = false;
        return isSecond;
    }

    void drag() { *this = {}; }

private:
    static constexpr int none = -1;
    int m_clicked = none; // the row of the last press and release
    bool m_isPressedAgain = false;
};

} // namespace columnimport
