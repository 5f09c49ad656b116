// SPDX-License-Identifier: MIT

#include "drillhole/window/ChoicesBar.h"

#include "drillhole/rows/text.h"

namespace drillhole {

ChoicesBar::ChoicesBar(Settings &settings)
    : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 8), m_settings(settings) {
    // In the order of BelowDetection.
    m_belowDetection.append("refused", "is refused");
    m_belowDetection.append("half", "is half of the limit");
    m_belowDetection.append("negative", "is the limit as a negative");
    m_belowDetection.append("empty", "is left empty");
    // In the order of DecimalMark.
    m_decimalMark.append("shown", "as the file shows");
    m_decimalMark.append("point", "point");
    m_decimalMark.append("comma", "comma");
    m_noValue.set_placeholder_text("words, such as NA, n/a, -, -9999");
    m_noValue.set_hexpand();
    const auto add = [this](const char *text, auto &control, const char *key,
                            const Glib::PropertyProxy<Glib::ustring> &choice) {
        auto *label = Gtk::make_managed<Gtk::Label>(text, true);
        label->set_mnemonic_widget(control);
        pack_start(*label, Gtk::PACK_SHRINK);
        pack_start(control);
        control.signal_changed().connect([this, key, choice] {
            if (m_table != nullptr) {
                m_settings.keep(m_table->name, key, {choice.get_value()});
            }
        });
    };
    add("_Below detection (<0.01)", m_belowDetection, "below detection",
        m_belowDetection.property_active_id());
    add("_No value", m_noValue, "no value", m_noValue.property_text());
    add("_Decimal mark", m_decimalMark, "decimal mark", m_decimalMark.property_active_id());
}

void ChoicesBar::show(const Table &table) {
    m_table = nullptr;
    m_belowDetection.set_active(0);
    m_belowDetection.set_active_id(m_settings.text(table.name, "below detection"));
    m_noValue.set_text(m_settings.text(table.name, "no value"));
    m_decimalMark.set_active(0);
    m_decimalMark.set_active_id(m_settings.text(table.name, "decimal mark"));
    m_table = &table;
}

ValueChoices ChoicesBar::choices() const {
    return {static_cast<BelowDetection>(m_belowDetection.get_active_row_number()),
            listOf(m_noValue.get_text()),
            static_cast<DecimalMark>(m_decimalMark.get_active_row_number())};
}

} // namespace drillhole
