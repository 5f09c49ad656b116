// SPDX-License-Identifier: MIT

#include "languages/translated.h"

#include "languages/catalogues.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <string_view>

#include <wx/arrstr.h>
#include <wx/translation.h>

namespace columnimport {

namespace {

constexpr const char *catalogueName = "columnimport";
constexpr std::string_view languages[] = {COLUMNIMPORT_LANGUAGES};

/// Null for English. The toolkit's global translations belong to the host.
std::unique_ptr<wxTranslations> chosen;

bool hasCatalogue(const std::string &language) {
    return std::find(std::begin(languages), std::end(languages), language) != std::end(languages);
}

/// The language of the catalogue for `wanted`: with its country, or else without; empty if there is
/// none.
std::string catalogueFor(const std::string &wanted) {
    for (const std::string &language : {wanted, wanted.substr(0, wanted.find('_'))}) {
        if (hasCatalogue(language)) {
            return language;
        }
    }
    return {};
}

bool isEnglish(const std::string &language) {
    return language == "C" || language == "POSIX" || language.substr(0, language.find('_')) == "en";
}

class Catalogues : public wxTranslationsLoader {
public:
    wxMsgCatalog *LoadCatalog(const wxString &name, const wxString &language) override {
        return loadCatalogue(name, language);
    }

    wxArrayString GetAvailableTranslations(const wxString &) const override {
        wxArrayString all;
        for (const std::string_view language : languages) {
            all.push_back(wxString(language.data(), language.size()));
        }
        return all;
    }
};

} // namespace

void chooseLanguage() {
    chosen.reset();
    std::istringstream wantedOnes(messageLanguages());
    for (std::string wanted; std::getline(wantedOnes, wanted, ':');) {
        wanted.erase(std::min(wanted.find_first_of(".@"), wanted.size()));
        if (isEnglish(wanted)) {
            return;
        }
        const std::string language = catalogueFor(wanted);
        if (language.empty()) {
            continue;
        }
        auto translations = std::make_unique<wxTranslations>();
        translations->SetLoader(new Catalogues);
        translations->SetLanguage(language);
        if (translations->AddCatalog(catalogueName)) {
            chosen = std::move(translations);
            return;
        }
    }
}

wxString translated(const char *text) {
    const wxString *found =
        chosen == nullptr ? nullptr : chosen->GetTranslatedString(text, catalogueName);
    return found == nullptr ? wxString(text) : *found;
}

wxString translated(const char *one, const char *many, unsigned count) {
    const wxString *found =
        chosen == nullptr ? nullptr : chosen->GetTranslatedString(one, count, catalogueName);
    return found == nullptr ? wxString(count == 1 ? one : many) : *found;
}

} // namespace columnimport
