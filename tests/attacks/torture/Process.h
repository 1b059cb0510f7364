// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace torture
{

/// What a process came to.
struct Ended {
    bool wasInTime = true;
    bool wasKilled = false; // by whoever ran it, as asked
    int signal = 0;         // 0 where it ended by itself
    int status = 0;
    qint64 memory = 0; // the most that it and its children had, in bytes
    QStringList said;  // the program's own sentences, on standard error
    bool leftChildren = false;
};

/// A program on its own, off the screen, with a home and a folder for temporary files of its own. Collects
/// whatever it leaves behind.
class Process
{
public:
    using Environment = QMap<QByteArray, QByteArray>;

    Process(const QString& home, const QStringList& command, const Environment& environment = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Whether it has ended within this time.
    bool waitFor(int milliseconds);
    void kill();
    /// Waits until it has ended, as long as a busy machine needs; kills it then. Of processes that run at the
    /// same time, all must have ended by then.
    Ended end();

    /// Called once, so that the children of ended processes come to this one.
    static void adoptOrphans();

private:
    QString m_log;
    pid_t m_process = -1;
    bool m_isKilled = false;
    bool m_hasEnded = false;
    Ended m_ended;
};

/// How long a process may take that hangs nowhere, in milliseconds: 10 s on an idle machine.
int patience();

} // namespace torture
