// SPDX-License-Identifier: MIT

#pragma once

#include "drillhole/database/connection.h"

#include <atomic>
#include <functional>

#include <glib.h>

namespace drillhole {

/// The thread that a database lives on, so that the window stays alive however long it takes. Work
/// is done in the order in which it was given; the database is opened when there is some, and
/// again after work that failed.
///
/// When this ends or turns to another database, work that waits is dropped, and of work that runs
/// nobody hears any more, nor waits for it.
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

    /// Turns to a database, also to the one of before on a thread and a connection that are new.
    void use(const std::string &connection);

    const std::string &connection() const { return m_connection; }

    /// Turns to none.
    void drop();

    /// Has `work(soci::session &)` done on the thread, and then calls `done(result, fault)` on the
    /// window's thread, with what the work returned and what to tell the user, an empty string if
    /// all went well. The work owns, or shares, all that it uses.
    template <typename Work, typename Done>
    void run(Work work, Done done) {
        const auto result = std::make_shared<std::invoke_result_t<Work, soci::session &>>();
        start([=](soci::session &session) { *result = work(session); },
              [=](const std::string &fault) { done(*result, fault); });
    }

    /// The same with `done(result)` for what went well; a fault is told the user.
    template <typename Work, typename Done>
    void ask(Work work, Done done) {
        run(work, [this, done](const auto &result, const std::string &fault) {
            fault.empty() ? done(result) : m_tellFault(fault);
        });
    }

private:
    using Task = std::function<void(soci::session &)>;
    struct Database {
        Session session = {};
        std::atomic<bool> isDropped{false};
    };

    void start(const Task &task, const Tell &done) const;

    Open &m_open;
    Tell m_tellFault;
    std::string m_connection;
    std::shared_ptr<Database> m_database;
    GThreadPool *m_pool = nullptr; ///< of one thread
};

} // namespace drillhole
