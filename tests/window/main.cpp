#include <clocale>

#include <glib.h>
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
    // A GTK critical ends the test. The environment variable for it would come too late here: it is
    // read as the program is loaded.
    g_log_set_always_fatal(static_cast<GLogLevelFlags>(G_LOG_FATAL_MASK | G_LOG_LEVEL_CRITICAL));
    std::setlocale(LC_ALL, "");
    wxSetAssertHandler(failTest);
    testing::InitGoogleTest(&argumentCount, arguments);
    return RUN_ALL_TESTS();
}
