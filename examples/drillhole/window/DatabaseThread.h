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
/// When this ends, work that waits is dropped, and of work that runs nobody hears any more.
class DatabaseThread {
public:
    using Open = Session (*)(const std::string &connection);
    using Work = std::function<void(soci::session &session)>;
    using Done = std::function<void(const std::string &fault)>;

    DatabaseThread(const std::string &connection, Open open);
    ~DatabaseThread();
    DatabaseThread(const DatabaseThread &) = delete;
    DatabaseThread &operator=(const DatabaseThread &) = delete;

    const std::string &connection() const { return m_database->connection; }

    /// Has the work done on the thread, and then calls `done` on the window's thread with what to
    /// tell the user, or an empty string if all went well. The work shares all that it uses.
    void run(Work work, Done done);

private:
    struct Database {
        std::string connection;
        Open open;
        Session session;
    };

    void startNext();
    bool tellEnd();

    std::shared_ptr<Database> m_database;
    std::deque<std::pair<Work, Done>> m_tasks; // the first one runs
    std::future<std::string> m_fault;          // of that one
    sigc::connection m_timer;
};

} // namespace drillhole
