// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <iosfwd>
#include <vector>

/// What a writer or reader of files said about its work.
struct Outcome {
    bool isDone = false;
    QString sentence; // why not; empty where it has no way of saying so
    QByteArray found; // what a reader read
};

/// One thing that the program does with files of the user's.
struct Operation {
    /// One that writes in place may leave the new content's beginning before the old one's end.
    enum Kind { Reads, Writes, WritesInPlace };
    enum Words { Speaks, IsSilent }; // of what could not be done

    const char* name;
    Kind kind;
    Words words;
    /// Fills the folder with what is there before.
    std::function<void(const QString& folder)> prepare;
    std::function<Outcome(const QString& folder)> act;
};

void PrintTo(const Operation& operation, std::ostream* out);

std::vector<Operation> allOperations();
