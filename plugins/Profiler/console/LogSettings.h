// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogRows.h"

namespace profiler
{

/// What the user chose in the log, kept for the next session. A filter is not: it would hide lines that
/// nobody knows of.
struct LogSettings {
    bool showsTime = false;
    bool showsThread = false;
    LogFold fold = LogFold::Runs;
    int context = 0;

    static LogSettings read();
    void write() const;
};

constexpr int MostContext = 99; // lines

} // namespace profiler
