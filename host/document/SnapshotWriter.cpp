// SPDX-License-Identifier: MIT
#include "document/SnapshotWriter.h"

#include "support/CatchExceptions.h"

#include <xsg/files/SoSceneFile.h>

#include <QDir>
#include <QElapsedTimer>
#include <QSaveFile>

#include <algorithm>
#include <mutex>
#include <string>
#include <system_error>
#include <unistd.h>

namespace scopix
{

namespace
{

constexpr std::size_t BlockBytes = 1 << 20; // after each, the thread looks whether it is still wanted

QString cannotWrite(const QString& path, const QString& reason)
{
    return SnapshotWriter::tr("%1: The file cannot be written: %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

} // namespace

/// One snapshot on its way to the file. Owned by the writer and by the thread that runs it.
class SnapshotWriter::Job : public std::enable_shared_from_this<Job>
{
public:
    Job(SnapshotWriter& writer, const SoNode* root, QString path)
        : m_path(std::move(path))
        , m_writer(&writer)
    {
        m_problem = catchExceptions([&] { m_text = SoSceneFile::writeText(root); });
    }

    /// On the thread.
    void run()
    {
        QString problem = m_problem;
        if (problem.isEmpty()) {
            const QString failure = catchExceptions([&] { problem = writeFile(); });
            problem = failure.isEmpty() ? problem : failure;
        }
        report(problem.isEmpty() ? QString() : cannotWrite(m_path, problem));
    }

    /// Waits no longer than renaming a file takes.
    void cancel()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_writer = nullptr;
    }

private:
    // While the lock is held, the writer neither cancels nor is destroyed. False where it has cancelled.
    template <class Act>
    bool unlessCancelled(Act act)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_writer)
            act();
        return m_writer != nullptr;
    }

    // Returns why it cannot be written, or an empty text.
    QString writeFile()
    {
        QSaveFile file(m_path);
        bool good = false;
        unlessCancelled([&] { good = file.open(QIODevice::WriteOnly); });
        good = good && writeText(file) && file.flush();
        if (good)
            fsync(file.handle()); // here, since commit() would do it while the lock is held
        unlessCancelled([&] { good = good && file.commit(); });
        return good ? QString() : file.errorString();
    }

    bool writeText(QSaveFile& file)
    {
        for (std::size_t at = 0; at < m_text.size(); at += BlockBytes) {
            const auto size = static_cast<qint64>(std::min(BlockBytes, m_text.size() - at));
            if (!unlessCancelled([] {}) || file.write(m_text.data() + at, size) != size)
                return false;
        }
        return true;
    }

    void report(const QString& error)
    {
        unlessCancelled([&] {
            QMetaObject::invokeMethod(
                m_writer, [writer = m_writer, job = shared_from_this(), error] { writer->end(job, error); },
                Qt::QueuedConnection);
        });
    }

    const QString m_path;
    std::string m_text;
    QString m_problem; // of making the text
    std::mutex m_mutex;
    SnapshotWriter* m_writer; // null once cancelled
};

SnapshotWriter::SnapshotWriter(QObject* parent)
    : QObject(parent)
{
}

SnapshotWriter::~SnapshotWriter()
{
    cancel();
}

void SnapshotWriter::write(const SoNode* root, const QString& path)
{
    QElapsedTimer clock;
    clock.start();
    m_job = std::make_shared<Job>(*this, root, path);
    begin(m_job);
    m_lastBlockedMs = clock.elapsed();
}

// A cancelled thread that still runs comes first: both may write to the same file.
void SnapshotWriter::begin(const std::shared_ptr<Job>& job)
{
    try {
        m_allThreads = std::async(std::launch::async, [job, before = std::move(m_allThreads)]() mutable {
            if (before.valid())
                before.wait();
            job->run();
        });
    } catch (const std::system_error&) {
        job->run(); // there is no thread to be had: better late than never
    }
}

// A report may have been on its way when its job was cancelled.
void SnapshotWriter::end(const std::shared_ptr<Job>& job, const QString& error)
{
    if (job != m_job)
        return;
    m_job.reset();
    emit finished(error);
}

void SnapshotWriter::cancel()
{
    if (m_job)
        m_job->cancel();
    m_job.reset();
}

} // namespace scopix
