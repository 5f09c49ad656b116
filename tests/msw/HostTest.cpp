// SPDX-License-Identifier: MIT

// A plain host on Windows, which uses the public header and not the toolkit: its results, and the
// state of its window and loop afterwards.

#include "person/msw/Xdotool.h"
#include "tests/ScratchFile.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

#include <columnimport.h>
#include <gtest/gtest.h>
#include <windows.h>
#include <wxImportCSVDialogPeer.h>

namespace {

using Names = std::vector<std::string>;

// The dialog's identifiers of its controls.
constexpr int okButton = 5100;
constexpr int filePreview = 5;
constexpr int matchList = 3;

HWND newHostWindow() {
    return CreateWindowW(L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 300, 200,
                         nullptr, nullptr, nullptr, nullptr);
}

void poll(const char *expected, const std::function<bool()> &isSo) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (!isSo()) {
        ASSERT_LT(std::chrono::steady_clock::now(), end) << "waited in vain until " << expected;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

HWND controlOf(HWND dialog, int id) {
    struct Search {
        int id;
        HWND found;
    } search = {id, nullptr};
    EnumChildWindows(
        dialog,
        [](HWND window, LPARAM number) -> BOOL {
            auto &sought = *reinterpret_cast<Search *>(number);
            sought.found = GetDlgCtrlID(window) == sought.id ? window : sought.found;
            return sought.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// Whether the preview shows something between these heights.
bool hasInk(HWND dialog, int top, int bottom) {
    HWND preview = controlOf(dialog, filePreview);
    RedrawWindow(preview, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    HDC picture = GetDC(preview);
    const COLORREF paper = GetPixel(picture, 840, 124);
    bool found = false;
    for (int y = top; y < bottom && !found; ++y) {
        for (int x = 0; x < 200; ++x) {
            found = found || GetPixel(picture, x, y) != paper;
        }
    }
    ReleaseDC(preview, picture);
    return found;
}

using Steps = std::function<void(HWND dialog)>;

void click(HWND dialog, int control) {
    RECT place = {};
    GetWindowRect(controlOf(dialog, control), &place);
    Xdotool().order("mousemove " + std::to_string((place.left + place.right) / 2) + " " +
                    std::to_string((place.top + place.bottom) / 2) + " click 1");
}

void pressOk(HWND dialog) {
    click(dialog, okButton);
}

class Host : public testing::Test {
protected:
    Host() : file("BHID,Azimut;Dip\r\n1,2;3\r\n"), path(file.path()), window(newHostWindow()) {}
    ~Host() override { DestroyWindow(window); }

    /// Has a person take these steps once the dialog takes keys.
    bool show(const Steps &steps) {
        return run(steps, [this] {
            return peer.showWindow(window, "Import of a test", {"holename", "dip"}, path,
                                   &useSavedMatches, &matches, &delimiter, &firstLineHeader, 900,
                                   900);
        });
    }

    static bool run(const Steps &steps, const std::function<bool()> &showDialog) {
        std::atomic<bool> isOver = false;
        std::thread person([&] {
            HWND dialog = nullptr;
            poll("the dialog takes keys", [&] {
                dialog = FindWindowW(nullptr, L"Import of a test");
                return isOver || (dialog != nullptr && Xdotool().hasKeys("Import of a test"));
            });
            steps(dialog);
            poll("the dialog is closed", [&] { return isOver.load(); });
            // An open dialog would block the test for ever.
            if (!isOver) {
                PostMessageW(dialog, WM_CLOSE, 0, 0);
            }
        });
        const bool result = showDialog();
        isOver = true;
        person.join();
        return result;
    }

    wxImportCSVDialogPeer peer;
    ScratchFile file;
    std::string path;
    HWND window;
    bool useSavedMatches = true;
    Names matches;
    char delimiter = ';';
    bool firstLineHeader = true;
};

} // namespace

TEST_F(Host, ReadsAFileOfAnyNameThatAnotherProgramIsWriting) {
    const std::filesystem::path any =
        std::filesystem::temp_directory_path() / L"Bohrl\u00F6cher \u03A9 \u4E95.csv";
    HANDLE writer = CreateFileW(any.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    WriteFile(writer, "BHID;Dip\r\n", 10, &written, nullptr);
    path = any.u8string();
    EXPECT_TRUE(show(pressOk));
    EXPECT_EQ(matches, (Names{"BHID", "Dip"}));
    CloseHandle(writer);
    std::filesystem::remove(any);
}

TEST_F(Host, ShowsEachLineOfAFileInOneLine) {
    std::string words;
    for (int word = 0; word < 300; ++word) {
        words += "word ";
    }
    const ScratchFile wide(words + '\n');
    path = wide.path();
    EXPECT_TRUE(show([](HWND dialog) {
        EXPECT_TRUE(hasInk(dialog, 0, 10));
        EXPECT_FALSE(hasInk(dialog, 20, 120)) << "a line is wrapped";
        pressOk(dialog);
    }));
}

TEST_F(Host, KeepsItsWindowsStyleAndOwnsTheDialogByAnyHandle) {
    HWND child = CreateWindowW(L"BUTTON", L"Import", WS_CHILD | WS_VISIBLE, 0, 0, 80, 25, window,
                               nullptr, nullptr, nullptr);
    const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
    HWND const top = window;
    for (HWND handle : {top, child}) {
        window = handle;
        EXPECT_TRUE(show([top](HWND dialog) {
            EXPECT_EQ(GetWindow(dialog, GW_OWNER), top);
            EXPECT_FALSE(IsWindowEnabled(top));
            pressOk(dialog);
        }));
        EXPECT_TRUE(IsWindowEnabled(top));
        EXPECT_EQ(GetWindowLongPtrW(top, GWL_EXSTYLE), style);
        EXPECT_EQ(GetForegroundWindow(), top);
    }
    window = top;
    EXPECT_EQ(GetWindowLongPtrW(child, GWL_EXSTYLE), 0);
}

TEST_F(Host, GetsADialogWithoutAnOwnerForAnInvalidHandle) {
    DestroyWindow(window);
    for (HWND handle : {window, static_cast<HWND>(nullptr), GetDesktopWindow()}) {
        window = handle;
        EXPECT_TRUE(show([](HWND dialog) {
            EXPECT_EQ(GetWindow(dialog, GW_OWNER), nullptr);
            pressOk(dialog);
        }));
    }
    EXPECT_TRUE(IsWindowEnabled(GetDesktopWindow()));
}

TEST_F(Host, KeepsRunningIfTheClipboardsOwnerHangs) {
    std::atomic<bool> hasText = false;
    std::atomic<bool> isAsked = false;
    std::atomic<bool> isOver = false;
    std::thread program([&] {
        HWND owner =
            CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        OpenClipboard(owner);
        EmptyClipboard();
        SetClipboardData(CF_UNICODETEXT, nullptr);
        CloseClipboard();
        hasText = true;
        poll("the dialog is closed", [&] {
            isAsked = isAsked || GetQueueStatus(QS_SENDMESSAGE) != 0;
            return isOver.load();
        });
        DestroyWindow(owner);
    });
    EXPECT_FALSE(show([&](HWND dialog) {
        poll("there is text to paste", [&] { return hasText.load(); });
        click(dialog, matchList);
        Xdotool().order("key Home ctrl+v");
        poll("the program is asked for it", [&] { return isAsked.load(); });
        Xdotool().order("key Escape");
    }));
    isOver = true;
    program.join();
}

TEST_F(Host, CanQuitDuringARunAndAfterIt) {
    EXPECT_FALSE(
        show([thread = GetCurrentThreadId()](HWND) { PostThreadMessageW(thread, WM_QUIT, 7, 0); }));
    EXPECT_TRUE(IsWindowEnabled(window));
    EXPECT_EQ(FindWindowW(nullptr, L"Import of a test"), nullptr);
    MSG message = {};
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
    EXPECT_TRUE(show(pressOk));
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Host, KeepsItsOutputsWhenItDestroysItsWindowDuringARun) {
    matches = {"from before"};
    delimiter = ',';
    firstLineHeader = false;
    EXPECT_FALSE(show([this](HWND) { PostMessageW(window, WM_CLOSE, 0, 0); }));
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(matches, Names{"from before"});
    EXPECT_EQ(delimiter, ',');
    EXPECT_FALSE(firstLineHeader);
    window = newHostWindow();
    EXPECT_TRUE(show(pressOk));
    columnimport_import *import = columnimport_new();
    columnimport_set_title(import, "Import of a test");
    columnimport_set_file(import, path.c_str());
    run([this](HWND) { PostMessageW(window, WM_CLOSE, 0, 0); },
        [this, import] {
            EXPECT_EQ(columnimport_show(import, window), columnimport_failed);
            return false;
        });
    EXPECT_EQ(columnimport_source_column_count(import), columnimport_invalid);
    columnimport_free(import);
}
