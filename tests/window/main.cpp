// SPDX-License-Identifier: MIT

#include "person/Screen.h"

#include <clocale>

#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/string.h>

namespace {

void failTest(const wxString &file, int line, const wxString &, const wxString &condition,
              const wxString &message) {
    ADD_FAILURE() << "toolkit assertion " << file.utf8_string() << ":" << line << ": "
                  << condition.utf8_string() << " " << message.utf8_string();
}

} // namespace

int main(int argumentCount, char **arguments) {
    abortOnWarnings();
    std::setlocale(LC_ALL, "");
    wxSetAssertHandler(failTest);
    testing::InitGoogleTest(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
