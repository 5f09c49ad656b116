// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/DatabaseThread.h"

#include "examples/drillhole/database/connection.h"
#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/holeDatabase.h"
#include "examples/drillhole/rows/Fault.h"

#include <utility>

namespace drillhole {

DatabaseThread::DatabaseThread(std::string connection) : m_connection(std::move(connection)) {
    m_isFinished.connect([this] { tellDone(); });
    m_thread = std::thread([this] { doTasks(); });
}

DatabaseThread::~DatabaseThread() {
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_isWanted.notify_one();
    m_thread.join();
}

void DatabaseThread::run(Work work, Done done) {
    {
        const std::lock_guard lock(m_mutex);
        m_waiting.push_back({std::move(work), std::move(done), {}});
    }
    m_isWanted.notify_one();
}

void DatabaseThread::doTasks() {
    soci::session session;
    std::unique_lock lock(m_mutex);
    while (true) {
        m_isWanted.wait(lock, [this] { return m_isEnding || !m_waiting.empty(); });
        if (m_isEnding) {
            return;
        }
        Task task = std::move(m_waiting.front());
        m_waiting.pop_front();
        lock.unlock();
        task.fault = doWork(session, task.work);
        lock.lock();
        m_finished.push_back(std::move(task));
        m_isFinished.emit();
    }
}

std::string DatabaseThread::doWork(soci::session &session, const Work &work) const {
    std::string fault;
    try {
        if (!session.is_connected()) {
            openDatabase(session, m_connection);
            makeHoleTables(session);
        }
        work(session);
        return {};
    } catch (const Fault &said) {
        return said.what();
    } catch (const soci::soci_error &error) {
        fault = faultText(error.get_error_message());
    } catch (const std::exception &error) {
        fault = error.what();
    }
    session.close();
    return fault;
}

void DatabaseThread::tellDone() {
    std::deque<Task> finished;
    {
        const std::lock_guard lock(m_mutex);
        finished.swap(m_finished);
    }
    for (const Task &task : finished) {
        task.done(task.fault);
    }
}

} // namespace drillhole
