// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One text that the console prints.
struct ConsoleMessage {
    enum Kind { Error = 0, Info = 1, Warning = 2 };
    static constexpr int KindCount = 3;

    QString text;
    int kind;
};
