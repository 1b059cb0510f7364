// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// One text that the console prints.
struct ConsoleMessage {
    enum Kind { Error = 0, Info = 1, Warning = 2 };
    static constexpr int KindCount = 3;

    QString text;
    int kind;

    /// What it is printed as: a message of an unknown kind is an error.
    Kind printedKind() const { return kind == Info || kind == Warning ? static_cast<Kind>(kind) : Error; }
};
