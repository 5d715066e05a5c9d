#pragma once

#include "platform/lxl/DPrintLog.h"

/// One line of the client in the program's log; the text as for printf, in UTF-8.
#define CLIENT_LOG(level, ...)                                                                               \
    lxl::DPrintLog::instance().Log(__FILE__, __LINE__, __func__, "client", (level), __VA_ARGS__)
