// SPDX-License-Identifier: MIT

#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include <glibmm/dispatcher.h>
#include <soci/soci.h>

namespace drillhole {

/// The thread that the connection to the drill holes lives on, so that the window stays alive
/// however long the database takes. Work is done in the order in which it was given.
class DatabaseThread {
public:
    using Work = std::function<void(soci::session &holes)>;
    using Done = std::function<void(const std::string &fault)>;

    /// The database is opened when there is work, and opened again after work that failed.
    explicit DatabaseThread(std::string connection);

    /// Waits for the work that has begun; what else was given is dropped.
    ~DatabaseThread();
    DatabaseThread(const DatabaseThread &) = delete;
    DatabaseThread &operator=(const DatabaseThread &) = delete;

    /// Has the work done on the thread, and then calls `done` on the window's thread with what to
    /// tell the user, or an empty string if all went well.
    void run(Work work, Done done);

private:
    struct Task {
        Work work;
        Done done;
        std::string fault;
    };

    void doTasks();
    std::string doWork(soci::session &session, const Work &work) const;
    void tellDone();

    const std::string m_connection;
    std::mutex m_mutex;
    std::condition_variable m_isWanted;
    std::deque<Task> m_waiting;
    std::deque<Task> m_finished;
    bool m_isEnding = false;
    Glib::Dispatcher m_isFinished;
    std::thread m_thread;
};

} // namespace drillhole
