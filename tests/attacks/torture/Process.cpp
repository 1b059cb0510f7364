// SPDX-License-Identifier: MIT
#include "Process.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

extern char** environ;

namespace torture
{

namespace
{

constexpr int PatienceMs = 10000;
constexpr int TurnMs = 5;

std::vector<char*> pointersTo(std::vector<QByteArray>& texts)
{
    std::vector<char*> pointers;
    for (QByteArray& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<QByteArray> allOf(const QString& home, Process::Environment environment)
{
    const QByteArray folder = QFile::encodeName(home);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment[name] = folder;
    environment["TMPDIR"] = environment["XDG_RUNTIME_DIR"] = folder + "/tmp";
    environment["QT_QPA_PLATFORM"] = "offscreen";
    environment["LIBGL_ALWAYS_SOFTWARE"] = "1";
    std::vector<QByteArray> texts;
    for (char** each = environ; *each; ++each) {
        if (!environment.contains(QByteArray(*each).split('=').first()))
            texts.emplace_back(*each);
    }
    for (auto each = environment.begin(); each != environment.end(); ++each)
        texts.push_back(each.key() + '=' + each.value());
    return texts;
}

QStringList sentencesIn(const QString& path)
{
    QFile file(path);
    QStringList sentences;
    if (!file.open(QIODevice::ReadOnly))
        return sentences;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("scopix: "))
            sentences << QString::fromUtf8(line.mid(8));
    }
    return sentences;
}

// Those that had lost their parents and have come to this process.
bool haveChildrenLeft()
{
    QDeadlineTimer deadline(2000); // those that are told by their parent's end need a moment
    while (true) {
        const pid_t child = waitpid(-1, nullptr, WNOHANG);
        if (child < 0)
            return false;
        if (child == 0 && deadline.hasExpired())
            return true;
        if (child == 0)
            QThread::msleep(TurnMs);
    }
}

} // namespace

int patience()
{
    double load = 0;
    getloadavg(&load, 1);
    return int(PatienceMs * std::max(1.0, load / std::max(1, QThread::idealThreadCount())));
}

void Process::adoptOrphans()
{
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

Process::Process(const QString& home, const QStringList& command, const Environment& environment)
{
    QDir(home).mkpath("tmp");
    QFile::setPermissions(home + "/tmp", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    std::vector<QByteArray> texts = allOf(home, environment);
    std::vector<QByteArray> words;
    for (const QString& word : command)
        words.push_back(QFile::encodeName(word));
    const std::vector<char*> variables = pointersTo(texts);
    const std::vector<char*> arguments = pointersTo(words);
    static int number = 0;
    m_log = home + QStringLiteral("/said-%1.log").arg(++number);
    const QByteArray log = QFile::encodeName(m_log);
    m_process = fork();
    if (m_process != 0)
        return;
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL); // whoever ends an attack ends all of it
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
    const int out = open(log.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(out, STDOUT_FILENO);
    dup2(out, STDERR_FILENO);
    execve(arguments[0], arguments.data(), variables.data());
    _exit(127);
}

Process::~Process()
{
    kill();
    end();
}

bool Process::waitFor(int milliseconds)
{
    QDeadlineTimer deadline(milliseconds);
    while (!m_hasEnded) {
        int status = 0;
        rusage used{};
        if (wait4(m_process, &status, WNOHANG, &used) == m_process) {
            m_hasEnded = true;
            m_ended.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
            m_ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
            m_ended.memory = qint64(used.ru_maxrss) * 1024;
            m_ended.wasKilled = m_isKilled && m_ended.signal == SIGKILL;
        } else if (deadline.hasExpired()) {
            return false;
        } else {
            QThread::usleep(500);
        }
    }
    return true;
}

void Process::kill()
{
    if (!m_hasEnded && ::kill(m_process, SIGKILL) == 0)
        m_isKilled = true;
}

Ended Process::end()
{
    m_ended.wasInTime = m_ended.wasInTime && waitFor(patience());
    if (!m_hasEnded) {
        ::kill(m_process, SIGKILL);
        waitFor(patience());
    }
    m_ended.said = sentencesIn(m_log);
    m_ended.leftChildren = haveChildrenLeft();
    if (m_ended.leftChildren) {
        ::kill(-m_process, SIGKILL); // the group that this process has made
        haveChildrenLeft();
    }
    return m_ended;
}

} // namespace torture
