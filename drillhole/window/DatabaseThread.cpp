// SPDX-License-Identifier: MIT

#include "drillhole/window/DatabaseThread.h"

#include <utility>

#include <glibmm/main.h>

namespace drillhole {

using Work = std::function<void()>;

void DatabaseThread::use(const std::string &connection) {
    drop();
    m_connection = connection;
    m_database = std::make_shared<Database>();
    const auto perform = [](void *work, void *) {
        (*std::unique_ptr<Work>(static_cast<Work *>(work)))();
    };
    m_pool = g_thread_pool_new(perform, nullptr, 1, FALSE, nullptr);
}

void DatabaseThread::drop() {
    if (m_pool != nullptr) {
        m_database->isDropped = true;
        g_thread_pool_free(std::exchange(m_pool, nullptr), FALSE, FALSE);
    }
}

void DatabaseThread::start(const Task &task, const Tell &done) const {
    const auto perform = [&open = m_open, connection = m_connection, database = m_database, task,
                          done] {
        if (database->isDropped) {
            return;
        }
        std::string fault;
        try {
            inPlainWords(connection, [&] {
                if (!database->session) {
                    database->session = open(connection);
                }
                task(*database->session);
            });
        } catch (const std::exception &error) {
            database->session.reset();
            fault = error.what();
        }
        Glib::signal_idle().connect_once([=] {
            if (!database->isDropped) {
                done(fault);
            }
        });
    };
    g_thread_pool_push(m_pool, new Work(perform), nullptr);
}

} // namespace drillhole
