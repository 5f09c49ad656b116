// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/ChoicesBar.h"

#include "examples/drillhole/rows/text.h"

#include <sstream>

#include <gtkmm/label.h>

namespace drillhole {

ChoicesBar::ChoicesBar(Settings &settings)
    : Gtk::Box(Gtk::ORIENTATION_HORIZONTAL, 8), m_settings(settings),
      m_decimalCommas("_1,5 is a number between semicolons", true) {
    for (const char *choice :
         {"is refused", "is half of the limit", "is the limit as a negative", "is left empty"}) {
        m_belowDetection.append(choice);
    }
    m_noValue.set_placeholder_text("words, such as NA, n/a, -, -9999");
    m_noValue.set_hexpand();
    const auto add = [this](const char *text, Gtk::Widget &control) {
        auto *label = Gtk::make_managed<Gtk::Label>(text, true);
        label->set_mnemonic_widget(control);
        pack_start(*label, Gtk::PACK_SHRINK);
        pack_start(control);
    };
    add("_Below detection (<0.01)", m_belowDetection);
    add("_No value", m_noValue);
    pack_start(m_decimalCommas, Gtk::PACK_SHRINK);
    m_belowDetection.signal_changed().connect([this] { keep(); });
    m_noValue.signal_changed().connect([this] { keep(); });
    m_decimalCommas.signal_toggled().connect([this] { keep(); });
}

void ChoicesBar::show(const Table &table) {
    m_table = nullptr;
    const ValueChoices choices = m_settings.choices(table);
    m_belowDetection.set_active(static_cast<int>(choices.belowDetection));
    std::string words;
    for (const std::string &word : choices.noValue) {
        words += (words.empty() ? "" : ", ") + word;
    }
    m_noValue.set_text(words);
    m_decimalCommas.set_active(choices.hasDecimalCommas);
    m_table = &table;
}

void ChoicesBar::keep() {
    if (m_table == nullptr) {
        return;
    }
    ValueChoices choices{static_cast<BelowDetection>(m_belowDetection.get_active_row_number()),
                         {},
                         m_decimalCommas.get_active()};
    std::istringstream words(m_noValue.get_text());
    for (std::string word; std::getline(words, word, ',');) {
        if (!trimmed(word).empty()) {
            choices.noValue.emplace_back(trimmed(word));
        }
    }
    m_settings.keepChoices(*m_table, choices);
}

} // namespace drillhole
