// SPDX-License-Identifier: MIT

#include "examples/drillhole/window/DatabaseThread.h"

#include "examples/drillhole/database/faultText.h"
#include "examples/drillhole/database/onOwnThread.h"

#include <glibmm/main.h>

namespace drillhole {

namespace {

constexpr unsigned int interval = 5; // milliseconds

} // namespace

DatabaseThread::DatabaseThread(const std::string &connection, Open open)
    : m_database(std::make_shared<Database>(Database{connection, open, nullptr})) {}

DatabaseThread::~DatabaseThread() {
    m_timer.disconnect();
}

void DatabaseThread::run(Work work, Done done) {
    m_tasks.emplace_back(std::move(work), std::move(done));
    if (m_tasks.size() == 1) {
        startNext();
    }
}

void DatabaseThread::startNext() {
    m_fault = onOwnThread([database = m_database, work = m_tasks.front().first]() -> std::string {
        try {
            inPlainWords(database->connection, [&] {
                if (!database->session) {
                    database->session = database->open(database->connection);
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
    const Done done = std::move(m_tasks.front().second);
    m_tasks.pop_front();
    if (!m_tasks.empty()) {
        startNext();
    }
    done(fault); // may end this
    return false;
}

} // namespace drillhole
