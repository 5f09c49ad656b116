// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/DatabaseThread.h"

#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/onOwnThread.h"

#include <glibmm/main.h>

namespace drillhole {

namespace {

constexpr unsigned int interval = 5; // milliseconds

} // namespace

void DatabaseThread::use(const std::string &connection) {
    drop();
    m_database = std::make_shared<Database>(Database{connection, nullptr});
}

void DatabaseThread::drop() {
    m_timer.disconnect();
    m_tasks.clear();
}

void DatabaseThread::add(Task task) {
    m_tasks.push_back(std::move(task));
    if (m_tasks.size() == 1) {
        startNext();
    }
}

void DatabaseThread::startNext() {
    m_fault = onOwnThread(
        [open = m_open, database = m_database, work = m_tasks.front().work]() -> std::string {
            try {
                inPlainWords(database->connection, [&] {
                    if (!database->session) {
                        database->session = open(database->connection);
                    }
                    work(*database->session);
                });
                return {};
            } catch (const std::exception &error) {
                database->session.reset();
                return error.what();
            }
        });
    m_timer = Glib::signal_timeout().connect([this] { return tellEnd(); }, interval);
}

bool DatabaseThread::tellEnd() {
    if (m_fault.wait_for(std::chrono::seconds(0)) != std::future_status::ready) {
        return true;
    }
    const std::string fault = m_fault.get();
    const auto done = std::move(m_tasks.front().done);
    m_tasks.pop_front();
    if (!m_tasks.empty()) {
        startNext();
    }
    done(fault); // may end this
    return false;
}

} // namespace drillhole
