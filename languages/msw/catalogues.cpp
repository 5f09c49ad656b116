// SPDX-License-Identifier: MIT

#include "languages/catalogues.h"

#include <algorithm>
#include <cstdlib>

#include <wx/msw/private.h>
#include <wx/translation.h>

namespace columnimport {

namespace {

/// Loads from the DLL, or whatever else this code is linked into.
class InLibrary : public wxResourceTranslationsLoader {
protected:
    WXHINSTANCE GetModule() const override {
        HMODULE library = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<const wchar_t *>(&loadCatalogue), &library);
        return library;
    }
};

} // namespace

// The variable is gettext's. Without it the thread's language counts: that of Windows, unless the
// host has set another.
std::string messageLanguages() {
    if (const char *listed = std::getenv("LANGUAGE"); listed != nullptr && *listed != '\0') {
        return listed;
    }
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    LCIDToLocaleName(MAKELCID(GetThreadUILanguage(), SORT_DEFAULT), name, LOCALE_NAME_MAX_LENGTH,
                     0);
    std::string language = wxString(name).utf8_string();
    std::replace(language.begin(), language.end(), '-', '_');
    return language;
}

wxMsgCatalog *loadCatalogue(const wxString &name, const wxString &language) {
    return InLibrary().LoadCatalog(name, language);
}

} // namespace columnimport
