// SPDX-License-Identifier: MIT
#include "document/SnapshotWriter.h"

#include <xsg/files/SoSceneFile.h>

#include <QFile>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace scopix
{

namespace
{

// A child that takes longer hangs: in a lock that another thread held when it was made.
constexpr int PatienceMs = 300 * 1000;

constexpr char Written = '+';

std::string writeHere(const SoNode* root, const std::string& path)
{
    std::string error;
    SoSceneFile::write(root, path, error);
    return error;
}

} // namespace

SnapshotWriter::SnapshotWriter(QObject* parent)
    : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(PatienceMs);
    connect(&m_patience, &QTimer::timeout, this, [this] {
        kill(m_child, SIGKILL);
        end(tr("“%1” cannot be written: writing it took too long.").arg(m_path));
    });
}

SnapshotWriter::~SnapshotWriter()
{
    cancel();
}

void SnapshotWriter::write(const SoNode* root, const QString& path)
{
    m_path = path;
    const std::string encoded = QFile::encodeName(path).toStdString();
    int ends[2] = {-1, -1};
    m_child = pipe2(ends, O_CLOEXEC) == 0 ? fork() : -1;
    if (m_child == 0)
        writeInChild(root, encoded, ends[1]);
    close(ends[1]);
    if (m_child < 0) { // no memory, or too many processes: better late than never
        close(ends[0]);
        m_child = 0;
        const QString error = QString::fromStdString(writeHere(root, encoded));
        QMetaObject::invokeMethod(
            this, [this, error] { emit finished(error); }, Qt::QueuedConnection);
        return;
    }
    m_answer = ends[0];
    m_notifier = std::make_unique<QSocketNotifier>(m_answer, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SnapshotWriter::childAnswers);
    m_patience.start();
}

// Nothing here may wait for another thread, since there is none any more, nor end in the parent's clean-up.
void SnapshotWriter::writeInChild(const SoNode* root, const std::string& path, int answer)
{
    const std::string error = writeHere(root, path);
    const std::string text = error.empty() ? std::string(1, Written) : error;
    const ssize_t told = ::write(answer, text.data(), text.size());
    _exit(told == static_cast<ssize_t>(text.size()) ? 0 : 1);
}

// One short text, which a pipe hands over whole; or the pipe's end, when the child died.
void SnapshotWriter::childAnswers()
{
    char text[4096];
    ssize_t size = 0;
    do {
        size = read(m_answer, text, sizeof text);
    } while (size < 0 && errno == EINTR);
    if (size == 1 && text[0] == Written)
        end({});
    else if (size > 0)
        end(QString::fromUtf8(text, static_cast<int>(size)));
    else
        end(tr("“%1” cannot be written: the process that wrote it ended early.").arg(m_path));
}

void SnapshotWriter::end(const QString& error)
{
    reap();
    emit finished(error);
}

void SnapshotWriter::cancel()
{
    if (!isBusy())
        return;
    kill(m_child, SIGKILL);
    reap();
}

void SnapshotWriter::reap()
{
    m_patience.stop();
    m_notifier.reset();
    close(m_answer);
    while (waitpid(m_child, nullptr, 0) < 0 && errno == EINTR) {
    }
    m_child = 0;
    m_answer = -1;
}

} // namespace scopix
