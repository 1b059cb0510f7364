// SPDX-License-Identifier: MIT
#include "document/SnapshotWriter.h"

#include "support/CatchExceptions.h"

#include <scopix/SpxSentence.h>
#include <xsg/fields/SoMFBitMask.h>
#include <xsg/fields/SoMFEnum.h>

#include <QDir>
#include <QElapsedTimer>
#include <QSaveFile>

#include <algorithm>
#include <mutex>
#include <string>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace scopix
{

namespace
{

constexpr std::size_t BlockBytes = 1 << 20; // after each, the thread looks whether it is still wanted
constexpr auto FirstTime = std::chrono::milliseconds(20); // what takes no longer is written as it is
constexpr auto TurnTime = std::chrono::milliseconds(8);   // until the user's events are looked at again
constexpr int PauseMs = 4;                                // before it goes on

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
    Job(SnapshotWriter& writer, QString path, const QByteArray& comment)
        : m_path(std::move(path))
        , m_comment(comment.toStdString())
        , m_writer(&writer)
    {
    }

    // --- On the GUI thread, before the other one runs it.
    void addText(const std::string& text) { m_parts.push_back({text, nullptr}); }
    /// Text that the thread will make.
    void addValue(std::shared_ptr<SoField> field) { m_parts.push_back({{}, std::move(field)}); }
    void setProblem(const QString& problem) { m_problem = problem; }

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
        good = good && writeParts(file) && file.flush();
        if (good)
            fsync(file.handle()); // here, since commit() would do it while the lock is held
        unlessCancelled([&] { good = good && file.commit(); });
        return good ? QString() : SpxSentence::ofFileError(file);
    }

    bool writeParts(QSaveFile& file)
    {
        for (Part& part : m_parts) {
            SbString value;
            if (part.value)
                part.value->get(value);
            if (!writeText(file, part.value ? value.str() : part.text))
                return false;
            part = {}; // its memory
        }
        return writeText(file, m_comment);
    }

    bool writeText(QSaveFile& file, const std::string& text)
    {
        for (std::size_t at = 0; at < text.size(); at += BlockBytes) {
            const auto size = static_cast<qint64>(std::min(BlockBytes, text.size() - at));
            if (!unlessCancelled([] {}) || file.write(text.data() + at, size) != size)
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

    struct Part {
        std::string text;
        std::shared_ptr<SoField> value; // or null
    };

    const QString m_path;
    const std::string m_comment;
    std::vector<Part> m_parts;
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

void SnapshotWriter::write(const SoNode* root, const QString& path, const QByteArray& comment)
{
    m_blockedNs = 0;
    m_longestNs = 0;
    m_job = std::make_shared<Job>(*this, path, comment);
    m_scene =
        std::make_unique<xsg::SceneWriter>([this](const std::string& text) { m_job->addText(text); },
                                           [this](const SoField& field) { return takeLongValue(field); });
    m_scene->begin(root);
    m_turn.start(PauseMs, this);
    advance(xsg::SceneWriter::Clock::now() + FirstTime);
}

void SnapshotWriter::timerEvent(QTimerEvent* /*event*/)
{
    advance(xsg::SceneWriter::Clock::now() + TurnTime);
}

void SnapshotWriter::advance(xsg::SceneWriter::Clock::time_point until)
{
    QElapsedTimer clock;
    clock.start();
    bool isText = false;
    const QString problem = catchExceptions([&] { isText = m_scene->advance(until); });
    m_job->setProblem(problem);
    if (isText || !problem.isEmpty()) {
        m_turn.stop();
        begin(m_job);
    }
    m_blockedNs += clock.nsecsElapsed();
    m_longestNs = std::max(m_longestNs, clock.nsecsElapsed());
}

// A copy of the value takes a moment, its text does not. Lists of names need their field's own table of them.
bool SnapshotWriter::takeLongValue(const SoField& field)
{
    if (dynamic_cast<const SoMFEnum*>(&field) || dynamic_cast<const SoMFBitMask*>(&field))
        return false;
    const std::shared_ptr<SoTypedObject> object(field.getTypeId().createInstance());
    const std::shared_ptr<SoField> copy = std::dynamic_pointer_cast<SoField>(object);
    if (!copy || !copy->copyFrom(field))
        return false;
    if (isReading())
        m_job->addValue(copy);
    else
        m_recorded = copy;
    return true;
}

FieldRecord SnapshotWriter::recordOf(const SoField& field)
{
    xsg::SceneWriter::Record record = m_scene->recordOf(field);
    return {std::move(record.text), std::move(m_recorded), std::move(record.rest)};
}

void SnapshotWriter::finishNow()
{
    if (!m_job)
        return;
    if (m_turn.isActive())
        advance(xsg::SceneWriter::Clock::time_point::max());
    m_allThreads.wait();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall); // the thread's report
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
    m_turn.stop();
    if (m_job)
        m_job->cancel();
    m_job.reset();
}

} // namespace scopix
