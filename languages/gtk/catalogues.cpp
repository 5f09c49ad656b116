// SPDX-License-Identifier: MIT

#include "languages/catalogues.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>

#include <dlfcn.h>
#include <wx/translation.h>

namespace columnimport {

namespace {

std::filesystem::path folderOfLibrary() {
    static const char inLibrary = 0;
    Dl_info library = {};
    if (dladdr(&inLibrary, &library) == 0) {
        return {};
    }
    std::error_code failure;
    return std::filesystem::canonical(library.dli_fname, failure).parent_path();
}

} // namespace

// Like gettext: the variable counts in every locale but C.
std::string messageLanguages() {
    std::string locale = std::setlocale(LC_MESSAGES, nullptr);
    if (locale == "C" || locale == "POSIX") {
        return locale;
    }
    const char *listed = std::getenv("LANGUAGE");
    return listed != nullptr && *listed != '\0' ? listed : locale;
}

// Relative to the library: as installed, or in its build folder.
wxMsgCatalog *loadCatalogue(const wxString &name, const wxString &language) {
    const std::filesystem::path library = folderOfLibrary();
    for (const char *folder : {COLUMNIMPORT_INSTALLED_CATALOGUES, "locale"}) {
        const std::filesystem::path file = library / folder / language.utf8_string() /
                                           "LC_MESSAGES" / (name.utf8_string() + ".mo");
        std::error_code failure;
        if (std::filesystem::is_regular_file(file, failure)) {
            return wxMsgCatalog::CreateFromFile(wxString::FromUTF8(file.u8string()), name);
        }
    }
    return nullptr;
}

} // namespace columnimport
