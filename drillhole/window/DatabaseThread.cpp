// SPDX-License-Identifier: MIT

#include "drillhole/window/DatabaseThread.h"

#include "drillhole/database/faultText.h"

namespace drillhole {

void DatabaseThread::use(const std::string &connection) {
    drop();
    m_database = std::make_shared<Database>();
    m_database->connection = connection;
    m_last = {};
}

void DatabaseThread::drop() {
    if (m_database) {
        m_database->isDropped = true;
    }
}

std::shared_future<std::string>
DatabaseThread::start(std::function<void(soci::session &)> work) const {
    const auto afterTheLast = [&open = m_open, database = m_database, last = m_last,
                               work = std::move(work)]() -> std::string {
        if (last.valid()) {
            last.wait();
        }
        if (database->isDropped) {
            return {};
        }
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
    };
    return onOwnThread(afterTheLast).share();
}

} // namespace drillhole
