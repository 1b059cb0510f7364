// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace profiler
{

/// What a line of the log names: a node or a field of the scene, or a file.
struct LogTarget {
    enum class Kind { Node, Field, File };
    Kind kind;
    QString name; // a path in the scene, or of a file
};

namespace LogTargets
{

/// The texts in a line that may name something: those in quotation marks, then its words, without the
/// punctuation around them; paths and fields first.
QList<QString> candidatesIn(const QString& line);
/// Those that there are now, each once; as many as a menu holds.
QList<LogTarget> find(const QString& line);
/// Selects it or opens it. False where it has gone meanwhile.
bool goTo(const LogTarget& target);

} // namespace LogTargets

} // namespace profiler
