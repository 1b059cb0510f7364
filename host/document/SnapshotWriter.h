// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <future>
#include <memory>

class SoNode;

namespace scopix
{

/// Writes a scene to a file as it is now, while the program continues and may change it: the scene becomes
/// text at once, which the caller waits for, and a thread writes the text to the file. GUI thread only.
class SnapshotWriter : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotWriter(QObject* parent = nullptr);
    /// Cancels what is being written, and waits until its thread has noticed.
    ~SnapshotWriter() override;

    /// Begins; finished() follows from the event loop. Not while it is busy.
    void write(const SoNode* root, const QString& path);
    bool isBusy() const { return m_job != nullptr; }
    /// finished() does not follow. The file is the old or the new one, and is not replaced any more when this
    /// returns; one under a temporary name may be left for a moment.
    void cancel();
    /// How long the last write() took, in milliseconds.
    qint64 getLastBlockedMs() const { return m_lastBlockedMs; }

signals:
    /// Empty when the file is complete, or one sentence that says why it is not.
    void finished(const QString& error);

private:
    class Job;
    void begin(const std::shared_ptr<Job>& job);
    void end(const std::shared_ptr<Job>& job, const QString& error);

    std::shared_ptr<Job> m_job;     // null when not busy
    std::future<void> m_allThreads; // ready when no thread writes any more
    qint64 m_lastBlockedMs = 0;
};

} // namespace scopix
