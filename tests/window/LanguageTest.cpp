// SPDX-License-Identifier: MIT

// The dialog in each of its languages, as a host sets it for messages.

#include "tests/window/FileRun.h"

#include <clocale>

#include <wx/translation.h>
#include <wx/utils.h>
#include <wxImportCSVDialog.h>

namespace {

using D = wxImportCSVDialog;

/// Expects whole captions, the button in its place, and room for the sentence beside the options.
void expectRoom(const std::string &language) {
    for (const wxWindow *box : openDialog().GetChildren()) {
        for (const wxWindow *caption : box->GetChildren()) {
            if (caption->GetId() == D::CHECK_HEADER || caption->GetId() < 0) {
                EXPECT_GE(caption->GetSize().x, caption->GetBestSize().x) << language;
            }
        }
    }
    const wxRect button = control(D::BTN_REMATCH).GetRect();
    EXPECT_EQ(button.GetRight() + 1, openDialog().GetClientSize().x - 25) << language;
    EXPECT_GE(button.width, control(D::BTN_REMATCH).GetBestSize().x) << language;
    const wxWindow &sentence = control(11);
    EXPECT_GE(sentence.GetSize().x * (sentence.GetSize().y / sentence.GetCharHeight()),
              sentence.GetTextExtent(sentence.GetLabel()).x * 5 / 4)
        << language;
}

} // namespace

TEST(Language, FollowsTheMessagesOfTheProcessAndFitsAllCaptions) {
    const std::string usual = std::setlocale(LC_ALL, nullptr);
    const bool isWindows = (wxGetOsVersion() & wxOS_WINDOWS) != 0;
    const struct {
        const char *locale, *languages, *caption, *unused;
    } cases[] = {
        {"C", "de", "Reset to Default", "Not used"},
        {"C.UTF-8", "it:en_GB:de", "Reset to Default", "Not used"},
        {"C.UTF-8", "it:de_AT.UTF-8@euro:fr", "Auf Standard zurücksetzen", "Nicht verwendet"},
        {"C.UTF-8", "es", "Restablecer valores predeterminados", "Sin usar"},
        {"C.UTF-8", "fr", "Rétablir les valeurs par défaut", "Non utilisée"},
        {"C.UTF-8", "pt_BR", "Restaurar padrão", "Não usada"},
        {"C.UTF-8", "ru", "Восстановить по умолчанию", "Не используется"},
        {"C.UTF-8", "zh_CN", "恢复默认", "未使用"},
    };
    const wxTranslations *const host = wxTranslations::Get();
    for (const auto &[locale, languages, caption, unused] : cases) {
        if (isWindows && locale == std::string("C")) {
            continue; // it has no locale for messages
        }
        std::setlocale(LC_ALL, locale);
        wxSetEnv("LANGUAGE", languages);
        FileRun run("BHID;X\n", {"gold"});
        run.cancelAfter([&languages = languages, &caption = caption, &unused = unused](Person &) {
            EXPECT_EQ(matchTexts(), Names{unused});
            EXPECT_EQ(boldRows(), std::vector<int>{0});
            onUserInterface([&] {
                EXPECT_EQ(control(D::BTN_REMATCH).GetLabel(), wxString::FromUTF8(caption));
                expectRoom(languages);
            });
        });
        EXPECT_EQ(run.matches, Names{""}) << languages;
        EXPECT_EQ(wxTranslations::Get(), host);
    }
    std::setlocale(LC_ALL, usual.c_str());
    wxUnsetEnv("LANGUAGE");
}
