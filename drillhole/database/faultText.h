// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>

#include <soci/soci.h>

namespace drillhole {

/// The SQLSTATE that a database gives a fault, or "SQLite " and the result code.
std::string codeOf(const soci::soci_error &error);

/// What to do about a fault that the database of that connection reports, by its SQLSTATE or its
/// result code, followed by its words without a password in them.
std::string faultText(const soci::soci_error &error, const std::string &connection);

/// Does the work, and throws what the database reports meanwhile as a Fault.
void inPlainWords(const std::string &connection, const std::function<void()> &work);

} // namespace drillhole
