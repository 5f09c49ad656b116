// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/rows/RowCheck.h"
#include "drillhole/window/Settings.h"

#include <gtkmm.h>

namespace drillhole {

/// What the next import into a table makes of values below detection, of words for no value and of
/// commas and points. It is kept with the table.
class ChoicesBar : public Gtk::Box {
public:
    explicit ChoicesBar(Settings &settings);

    /// Shows what is kept with the table.
    void show(const Table &table);

    ValueChoices choices() const;

private:
    Settings &m_settings;
    const Table *m_table = nullptr; // null while its choices are put in
    Gtk::ComboBoxText m_belowDetection;
    Gtk::Entry m_noValue;
    Gtk::ComboBoxText m_decimalMark;
};

} // namespace drillhole
