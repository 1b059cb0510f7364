// SPDX-License-Identifier: MIT
#pragma once

#include "document/EditJournal.h"

#include <xsg/files/SceneWriter.h>

#include <QBasicTimer>
#include <QObject>

#include <future>
#include <memory>

class SoNode;

namespace scopix
{

/// Writes a scene to a file while the program continues and the user works: the scene becomes text between
/// the events, a little at a time, and a thread writes the text to the file. Fields may change meanwhile,
/// and are in the file as they were at some moment; nothing else of the scene may. A small scene is in the
/// file as it was. GUI thread only.
class SnapshotWriter : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotWriter(QObject* parent = nullptr);
    /// Cancels what is being written, and waits until its thread has noticed.
    ~SnapshotWriter() override;

    /// Begins; finished() follows from the event loop. Not while it is busy. `comment`, one line, stands
    /// behind the scene. The root must live, and keep its nodes, until all is text.
    void write(const SoNode* root, const QString& path, const QByteArray& comment = {});
    bool isBusy() const { return m_job != nullptr; }
    /// The rest at once: when this returns, the file is complete or cannot be written, and finished() has
    /// been emitted.
    void finishNow();
    /// finished() does not follow. The file is the old or the new one, and is not replaced any more when this
    /// returns; one under a temporary name may be left for a moment.
    void cancel();
    /// How long writing has kept the user waiting since write(), in milliseconds, all moments together, and
    /// the longest of them.
    qint64 getLastBlockedMs() const { return m_blockedNs / 1000000; }
    qint64 getLongestBlockMs() const { return m_longestNs / 1000000; }

    /// Whether the scene is still becoming text.
    bool isReading() const { return m_turn.isActive(); }
    /// The state of a field of the scene that was written last.
    FieldRecord recordOf(const SoField& field);

signals:
    /// Empty when the file is complete, or one sentence that says why it is not.
    void finished(const QString& error);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    class Job;
    void advance(xsg::SceneWriter::Clock::time_point until);
    bool takeLongValue(const SoField& field);
    void begin(const std::shared_ptr<Job>& job);
    void end(const std::shared_ptr<Job>& job, const QString& error);

    std::unique_ptr<xsg::SceneWriter> m_scene;
    std::shared_ptr<SoField> m_recorded; // the long value of a record
    QBasicTimer m_turn;                  // while the scene becomes text
    std::shared_ptr<Job> m_job;          // null when not busy
    std::future<void> m_allThreads;      // ready when no thread writes any more
    qint64 m_blockedNs = 0;
    qint64 m_longestNs = 0;
};

} // namespace scopix
