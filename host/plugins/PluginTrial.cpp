// SPDX-License-Identifier: MIT
#include "plugins/PluginTrial.h"

#include "language/Languages.h"
#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

#include <cstring>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("PluginTrial", text);
}

constexpr int LongestReason = 1000;

// The first line of what the program says.
QString reasonIn(const QByteArray& said)
{
    return QString::fromUtf8(said).section(QLatin1Char('\n'), 0, 0).left(LongestReason);
}

// What it says is shown by this program.
QProcessEnvironment environmentOfTrial()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const Languages* languages = Languages::instance();
    environment.insert(QStringLiteral("SCOPIX_LANGUAGE"),
                       languages ? languages->current() : QStringLiteral("en"));
    return environment;
}

PluginTrial::Outcome crashed(int signal)
{
    return {tr("its code crashed while it was tried in a process of its own (%1)")
                .arg(QString::fromLocal8Bit(strsignal(signal))),
            true};
}

PluginTrial::Outcome tooLong(int patienceMs)
{
    return {tr("it was tried in a process of its own and did not finish loading within %1 seconds")
                .arg(patienceMs / 1000.0),
            true};
}

} // namespace

PluginTrial::Outcome PluginTrial::run(const QString& library, int patienceMs)
{
    QProcess trial;
    trial.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    trial.setProcessEnvironment(environmentOfTrial());
    trial.start(OwnLibrary::helperProgram(QStringLiteral("scopix-try-plugin")), {library});
    trial.waitForStarted(patienceMs);
    if (trial.error() == QProcess::FailedToStart)
        return {}; // an incomplete installation: the plug-in is loaded as it is
    trial.closeWriteChannel();
    if (!trial.waitForFinished(patienceMs)) {
        trial.kill();
        trial.waitForFinished(); // a killed process ends at once, unless it waits for a disk
        return tooLong(patienceMs);
    }
    if (trial.exitStatus() == QProcess::CrashExit)
        return crashed(trial.exitCode());
    if (trial.exitCode() == Succeeded)
        return {};
    const QString reason = reasonIn(trial.readAllStandardOutput());
    return reason.isEmpty() ? Outcome{tr("its code ended the process in which it was tried"), true}
                            : Outcome{reason, false};
}

} // namespace scopix
