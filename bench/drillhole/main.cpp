// SPDX-License-Identifier: MIT

// Imports a file of assays as the program does: on the database's thread, beside a main loop.
//   drillhole_bench ASSAYS.csv DATABASE
// Prints the number of imported rows, the peak memory in kB, and the main loop's longest wait in
// milliseconds.

#include "drillhole/database/connection.h"
#include "drillhole/database/importRows.h"
#include "drillhole/window/DatabaseThread.h"

#include <chrono>
#include <iostream>
#include <numeric>

#include <glibmm/init.h>
#include <glibmm/main.h>
#include <sys/resource.h>

using namespace drillhole;

namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned int tick = 5; // milliseconds

long peakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3) {
        std::cerr << "usage: drillhole_bench ASSAYS.csv DATABASE\n";
        return 2;
    }
    Glib::init();
    const std::string file = argv[1];
    const std::string database = argv[2];
    const auto loop = Glib::MainLoop::create();
    Clock::time_point last = Clock::now();
    Clock::duration longest{};
    Glib::signal_timeout().connect(
        [&] {
            const Clock::time_point now = Clock::now();
            longest = std::max(longest, now - last);
            last = now;
            return true;
        },
        tick);

    ImportProgress progress;
    ImportOutcome outcome;
    std::string failure;
    DatabaseThread thread(openHoles);
    thread.use(connectionFor(database));
    thread.run(
        [&](soci::session &holes) {
            const Table &assays = *findTable("assay");
            Match match;
            match.delimiter = ',';
            match.positions.resize(assays.columns.size());
            std::iota(match.positions.begin(), match.positions.end(), std::size_t{0});
            return importFile({holes, assays, file + ".refused", Replace::no, {}}, file, match,
                              progress);
        },
        [&](const ImportOutcome &result, const std::string &fault) {
            outcome = result;
            failure = fault;
            loop->quit();
        });
    loop->run();
    std::cerr << failure;
    std::cout << outcome.taken << ' ' << peakMemory() << ' '
              << std::chrono::duration_cast<std::chrono::milliseconds>(longest).count() << '\n';
    return failure.empty() ? 0 : 1;
}
