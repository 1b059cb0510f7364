// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <memory>

#include <sys/types.h>

class SoNode;

namespace scopix
{

/// Writes a scene as it is now, while the program goes on and may change it: a child process, which shares
/// the memory until either side writes to it, holds the scene still. What the person waits for is the child's
/// start alone, however long the writing takes. GUI thread only.
class SnapshotWriter : public QObject
{
    Q_OBJECT

public:
    explicit SnapshotWriter(QObject* parent = nullptr);
    /// Gives up what is being written.
    ~SnapshotWriter() override;

    /// Begins; finished() follows from the event loop. Not while it is busy.
    void write(const SoNode* root, const QString& path);
    bool isBusy() const { return m_child > 0; }
    /// finished() does not follow. The file is the old or the new one; one under a temporary name may be
    /// left.
    void cancel();

signals:
    /// An empty text when the file stands, or one sentence that says why it does not.
    void finished(const QString& error);

private:
    [[noreturn]] static void writeInChild(const SoNode* root, const std::string& path, int answer);
    void childAnswers();
    void end(const QString& error);
    void reap();

    pid_t m_child = 0;
    int m_answer = -1; // the end of the pipe through which the child tells
    QString m_path;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QTimer m_patience;
};

} // namespace scopix
