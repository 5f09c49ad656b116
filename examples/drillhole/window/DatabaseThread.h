// SPDX-License-Identifier: MIT

#pragma once

#include "examples/drillhole/database/connection.h"

#include <deque>
#include <functional>
#include <future>

#include <sigc++/connection.h>

namespace drillhole {

/// The thread that a database lives on, so that the window stays alive however long it takes. Work
/// is done in the order in which it was given; the database is opened when there is some, and
/// again after work that failed.
///
/// When this ends or turns to another database, work that waits is dropped, and of work that runs
/// nobody hears any more.
class DatabaseThread {
public:
    /// @param open  opens the database of a connection
    explicit DatabaseThread(Session (*open)(const std::string &connection)) : m_open(open) {}
    ~DatabaseThread() { drop(); }
    DatabaseThread(const DatabaseThread &) = delete;
    DatabaseThread &operator=(const DatabaseThread &) = delete;

    /// Turns to a database.
    void use(const std::string &connection);

    const std::string &connection() const { return m_database->connection; }

    void drop();

    /// Has `work(soci::session &)` done on the thread, and then calls `done(result, fault)` on the
    /// window's thread, with what the work returned and what to tell the user, an empty string if
    /// all went well. The work owns, or shares, all that it uses.
    template <typename Work, typename Done>
    void run(Work work, Done done) {
        const auto result = std::make_shared<std::invoke_result_t<Work, soci::session &>>();
        add({[result, work](soci::session &session) { *result = work(session); },
             [result, done](const std::string &fault) { done(*result, fault); }});
    }

private:
    struct Database {
        std::string connection;
        Session session;
    };
    struct Task {
        std::function<void(soci::session &session)> work;
        std::function<void(const std::string &fault)> done;
    };

    void add(Task task);
    void startNext();
    bool tellEnd();

    Session (*m_open)(const std::string &connection);
    std::shared_ptr<Database> m_database;
    std::deque<Task> m_tasks;         // the first one runs
    std::future<std::string> m_fault; // of that one
    sigc::connection m_timer;
};

} // namespace drillhole
