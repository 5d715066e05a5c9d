#pragma once

#include <QString>

/// The person at this computer.
namespace SystemUser {

/// The name that the system knows the person by, for the history; empty when the system does not tell.
QString Name();

} // namespace SystemUser
