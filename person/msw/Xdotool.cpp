// SPDX-License-Identifier: MIT

#include "person/msw/Xdotool.h"

#include <chrono>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <thread>

#include <windows.h>

namespace {

/// Starts a command of the system around Wine, which is its drive Z.
void startOutside(std::string command) {
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process) == FALSE) {
        throw std::runtime_error("can't be started: " + command);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

HANDLE openPipe(const std::string &path, DWORD access) {
    return CreateFileA(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                       OPEN_EXISTING, 0, nullptr);
}

} // namespace

// Wine's own pipes don't reach programs outside; the system's do, and opening them does not wait
// for the other side. The shell keeps both sides open until the first line shows that ours are.
Xdotool::Xdotool() {
    const std::string folder = "/tmp/columnimport-hand-" + std::to_string(std::random_device()());
    const char *display = std::getenv("DISPLAY");
    const std::string script =
        "exec 2>/dev/null; mkdir " + folder + " && cd " + folder +
        " && mkfifo orders answers && exec 3<>orders 4<>answers && touch ready"
        " && read begin <&3 && exec <orders >answers 3>&- 4>&-; rm -r " +
        folder + "; export DISPLAY=" + (display != nullptr ? display : "") +
        "; while read -r order; do xdotool $order; echo done; done";
    startOutside("Z:\\usr\\bin\\timeout 900 sh -c \"" + script + "\"");
    const std::string pipes = "Z:" + folder;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (GetFileAttributesA((pipes + "/ready").c_str()) == INVALID_FILE_ATTRIBUTES) {
        if (std::chrono::steady_clock::now() > end) {
            throw std::runtime_error("no pipes to xdotool in " + folder);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    m_orders = openPipe(pipes + "/orders", GENERIC_WRITE);
    m_answers = openPipe(pipes + "/answers", GENERIC_READ);
    write("begin");
}

Xdotool::~Xdotool() {
    CloseHandle(m_orders);
    CloseHandle(m_answers);
}

void Xdotool::write(const std::string &line) {
    DWORD count = 0;
    WriteFile(m_orders, (line + '\n').data(), static_cast<DWORD>(line.size() + 1), &count, nullptr);
}

std::string Xdotool::order(const std::string &commands) {
    write(commands);
    const std::string end = "done\n";
    std::string printed;
    while (printed.size() < end.size() ||
           printed.compare(printed.size() - end.size(), end.size(), end) != 0) {
        char next = 0;
        DWORD count = 0;
        if (ReadFile(m_answers, &next, 1, &count, nullptr) == FALSE || count == 0) {
            throw std::runtime_error("xdotool does not answer to: " + commands);
        }
        printed += next;
    }
    return printed.substr(0, printed.size() - end.size());
}

// Wine moves the X11 focus some time after the window manager activates a window, and a key pressed
// in between is lost.
bool Xdotool::hasKeys(const std::string &title) {
    return order("getwindowfocus -f getwindowname") == title + '\n';
}
