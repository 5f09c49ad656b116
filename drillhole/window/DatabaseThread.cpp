// SPDX-License-Identifier: MIT

#include "drillhole/window/DatabaseThread.h"

#include "drillhole/database/faultText.h"

#include <utility>

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

void DatabaseThread::start(
    std::function<void(const std::function<std::string(Task)> &)> work) const {
    const auto perform = [&open = m_open, connection = m_connection,
                          database = m_database](const Task &task) -> std::string {
        try {
            inPlainWords(connection, [&] {
                if (!database->session) {
                    database->session = open(connection);
                }
                task(*database->session);
            });
            return {};
        } catch (const std::exception &error) {
            database->session.reset();
            return error.what();
        }
    };
    const auto unlessDropped = [database = m_database, perform, work = std::move(work)] {
        if (!database->isDropped) {
            work(perform);
        }
    };
    g_thread_pool_push(m_pool, new Work(unlessDropped), nullptr);
}

} // namespace drillhole
