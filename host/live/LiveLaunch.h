// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/client/Client.h>

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace scopix
{

/// Starts a program and waits until it, or a process that it started, can be attached to. The program is on
/// its own: it runs on whatever becomes of us. GUI thread only.
class LiveLaunch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The program and its arguments; libraries of these paths, as far as they exist, are loaded into it. It
    /// runs in the folder, or in ours where that is empty.
    void start(const QStringList& command, const QStringList& preloaded, const QString& folder = {});

signals:
    void found(const QString& socketPath);
    /// One sentence.
    void failed(const QString& sentence);

private:
    void look();
    void fail(const QString& sentence);

    QString m_name;
    qint64 m_pid = 0;
    QTimer m_looks;
    QElapsedTimer m_time;
};

/// The program that a user means by part of its name, its number or the path of its socket; by nothing, the
/// only one. None, and a sentence, where there is none or more than one.
std::optional<live::Program> findProgram(const QString& word, QString& problem);

/// A line for each program that can be attached to: number, name, scene graph and socket.
QString livePrograms();

} // namespace scopix
