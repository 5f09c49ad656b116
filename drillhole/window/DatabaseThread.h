// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/connection.h"
#include "drillhole/database/onOwnThread.h"

#include <atomic>
#include <functional>
#include <future>

#include <glibmm/main.h>

namespace drillhole {

/// The threads that a database lives on, so that the window stays alive however long it takes. Work
/// is done in the order in which it was given; the database is opened when there is some, and
/// again after work that failed.
///
/// When this ends or turns to another database, work that waits is dropped, and of work that runs
/// nobody hears any more.
class DatabaseThread {
public:
    using Open = Session(const std::string &connection);
    using Tell = std::function<void(const std::string &fault)>;

    /// @param tellFault  tells the user why what was asked for is not there
    explicit DatabaseThread(Open &open, Tell tellFault = {})
        : m_open(open), m_tellFault(std::move(tellFault)) {}
    ~DatabaseThread() { drop(); }
    DatabaseThread(const DatabaseThread &) = delete;
    DatabaseThread &operator=(const DatabaseThread &) = delete;

    /// Turns to a database.
    void use(const std::string &connection);

    const std::string &connection() const { return m_database->connection; }

    /// Turns to none.
    void drop();

    /// Has `work(soci::session &)` done on the thread, and then calls `done(result, fault)` on the
    /// window's thread, with what the work returned and what to tell the user, an empty string if
    /// all went well. The work owns, or shares, all that it uses.
    template <typename Work, typename Done>
    void run(Work work, Done done) {
        const auto result = std::make_shared<std::invoke_result_t<Work, soci::session &>>();
        m_last = start([result, work](soci::session &session) { *result = work(session); });
        const auto tellEnd = [database = m_database, fault = m_last, result, done] {
            const bool isOver =
                fault.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
            if (isOver && !database->isDropped) {
                done(*result, fault.get());
            }
            return !isOver;
        };
        Glib::signal_timeout().connect(tellEnd, interval);
    }

    /// The same with `done(result)` for what went well; a fault is told the user.
    template <typename Work, typename Done>
    void ask(Work work, Done done) {
        run(work, [this, done](const auto &result, const std::string &fault) {
            fault.empty() ? done(result) : m_tellFault(fault);
        });
    }

private:
    static constexpr unsigned int interval = 5; // milliseconds
    struct Database {
        std::string connection;
        Session session;
        std::atomic<bool> isDropped{false};
    };

    std::shared_future<std::string> start(std::function<void(soci::session &)> work) const;

    Open &m_open;
    Tell m_tellFault;
    std::shared_ptr<Database> m_database;
    std::shared_future<std::string> m_last; // fault of the last work
};

} // namespace drillhole
