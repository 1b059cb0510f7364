// SPDX-License-Identifier: MIT
#include "live/LiveLaunch.h"

#include "support/Printable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>

namespace scopix
{

namespace
{

constexpr int LookMs = 150;
constexpr int LongestWaitMs = 20000;
constexpr std::chrono::seconds PatienceWithAll{3}; // where the user waits for those that run
constexpr int MostAncestors = 64;

QString nameOf(const live::Program& program)
{
    return printable(QString::fromStdString(program.name));
}

// 0 where the process is no more.
qint64 parentOf(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray line = file.readAll();
    return line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toLongLong();
}

bool isBelow(qint64 pid, qint64 ancestor)
{
    for (int i = 0; i < MostAncestors && pid > 1; ++i, pid = parentOf(pid)) {
        if (pid == ancestor)
            return true;
    }
    return false;
}

// A process that nobody has waited for yet is no longer there either.
bool isRunning(qint64 pid)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = file.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

QProcessEnvironment environmentWith(const QStringList& preloaded)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString key = QStringLiteral("LD_PRELOAD");
    QStringList all = environment.value(key).split(QLatin1Char(':'), Qt::SkipEmptyParts);
    for (const QString& path : preloaded) {
        if (QFileInfo::exists(path))
            all.prepend(path);
    }
    if (!all.isEmpty())
        environment.insert(key, all.join(QLatin1Char(':')));
    return environment;
}

} // namespace

void LiveLaunch::start(const QStringList& command, const QStringList& preloaded, const QString& folder)
{
    m_name = command.value(0);
    QProcess process;
    process.setProgram(m_name);
    process.setArguments(command.mid(1));
    process.setWorkingDirectory(folder);
    process.setProcessEnvironment(environmentWith(preloaded));
    if (!process.startDetached(&m_pid))
        return fail(
            tr("“%1” could not be started: %2.")
                .arg(m_name, QFileInfo(m_name).exists() || !QStandardPaths::findExecutable(m_name).isEmpty()
                                 ? process.errorString()
                                 : tr("there is no such program")));
    m_time.start();
    connect(&m_looks, &QTimer::timeout, this, &LiveLaunch::look);
    m_looks.start(LookMs);
}

void LiveLaunch::look()
{
    for (const live::Program& program : live::listPrograms()) {
        if (!isBelow(program.pid, m_pid))
            continue;
        m_looks.stop();
        emit found(QString::fromStdString(program.socketPath));
        return;
    }
    if (!isRunning(m_pid))
        fail(tr("“%1” ended before it could be attached to.").arg(m_name));
    else if (m_time.elapsed() > LongestWaitMs)
        fail(tr("“%1” runs and offers nothing to attach to: it has to use OpenSceneGraph as a shared "
                "library, or a "
                "live server of its own.")
                 .arg(m_name));
}

void LiveLaunch::fail(const QString& sentence)
{
    m_looks.stop();
    emit failed(sentence);
}

std::optional<live::Program> findProgram(const QString& word, QString& problem)
{
    const std::vector<live::Program> all = live::listPrograms(PatienceWithAll);
    std::vector<live::Program> found;
    const auto fits = [&word](const live::Program& each) {
        return QString::number(each.pid) == word || QString::fromStdString(each.socketPath) == word ||
               QString::fromStdString(each.name).compare(word, Qt::CaseInsensitive) == 0;
    };
    const auto resembles = [&word](const live::Program& each) {
        return QString::fromStdString(each.name).contains(word, Qt::CaseInsensitive);
    };
    std::copy_if(all.begin(), all.end(), std::back_inserter(found), fits);
    if (found.empty())
        std::copy_if(all.begin(), all.end(), std::back_inserter(found), resembles);
    if (found.size() == 1)
        return found.front();
    if (found.empty() && word.contains(QLatin1Char('/'))) {
        live::Program other; // which the connection tells about
        other.socketPath = QFileInfo(word).absoluteFilePath().toStdString();
        return other;
    }
    QStringList names;
    for (const live::Program& each : found)
        names += LiveLaunch::tr("%1 (%2)").arg(nameOf(each)).arg(each.pid);
    if (!found.empty())
        problem =
            LiveLaunch::tr(
                "More than one program can be attached to, so that the number of one has to be given: %1.")
                .arg(names.join(QStringLiteral(", ")));
    else if (word.isEmpty())
        problem = LiveLaunch::tr(
            "No program that can be attached to is running; scopix --launch PROGRAM starts one.");
    else
        problem = LiveLaunch::tr("No program “%1” that can be attached to is running; scopix --list-live "
                                 "lists those that are.")
                      .arg(word);
    return std::nullopt;
}

QString livePrograms()
{
    QString lines;
    for (const live::Program& each : live::listPrograms(PatienceWithAll))
        lines += QStringLiteral("%1\t%2\t%3\t%4\n")
                     .arg(each.pid)
                     .arg(nameOf(each), printable(QString::fromStdString(each.sceneGraph)),
                          QString::fromStdString(each.socketPath));
    return lines;
}

} // namespace scopix
