// SPDX-License-Identifier: MIT
// The program that loads a plug-in before the host does: scopix-try-plugin LIBRARY. Its exit status says
// whether the library could be loaded and made its plug-in; if not, it prints why, as the end of a sentence.
#include "language/Languages.h"
#include "plugins/HostPluginsManager.h"
#include "plugins/PluginTrial.h"
#include "services/HostServices.h"
#include "shell/HostShell.h"
#include "support/CatchExceptions.h"

#include <QApplication>
#include <QMainWindow>

#include <csignal>
#include <cstdio>
#include <exception>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace
{

constexpr rlim_t MostMemory = rlim_t{1} << 30; // beside what the program itself has

int s_report = STDOUT_FILENO;

// Whatever the library is in the middle of, it gets no further.
[[noreturn]] void end(const QString& reason)
{
    const QByteArray text = reason.toUtf8();
    if (write(s_report, text.constData(), size_t(text.size())) != text.size())
        _exit(1);
    _exit(text.isEmpty() ? scopix::PluginTrial::Succeeded : 1);
}

// An exception that leaves an initialiser has no other way to go.
[[noreturn]] void endForException()
{
    QString thrown = QCoreApplication::translate("PluginTrial", "its code ended the program");
    if (const std::exception_ptr exception = std::current_exception())
        thrown = scopix::catchExceptions([&] { std::rethrow_exception(exception); });
    end(QCoreApplication::translate("PluginTrial", "its initialisation failed: %1").arg(thrown));
}

rlim_t dataInUse()
{
    rlim_t data = 0;
    if (std::FILE* counts = std::fopen("/proc/self/statm", "r")) {
        unsigned long pages = 0;
        if (std::fscanf(counts, "%*u %*u %*u %*u %*u %lu", &pages) == 1)
            data = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE));
        std::fclose(counts);
    }
    return data;
}

void limitItself()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // nobody waits for the outcome any more
    const rlimit noDump{0, 0};
    setrlimit(RLIMIT_CORE, &noDump);
    const rlimit memory{dataInUse() + MostMemory, dataInUse() + MostMemory};
    setrlimit(RLIMIT_DATA, &memory);
}

// What the library prints is not to be taken for an outcome.
void keepOutputApart()
{
    s_report = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("scopix-try-plugin LIBRARY: loads a plug-in for scopix, to see whether it can be.\n",
                   stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    scopix::Languages::begin(); // the host shows what it says
    limitItself();
    keepOutputApart();
    // What plug-ins find when the host loads them.
    scopix::HostServices services;
    QMainWindow window;
    scopix::HostShell shell(window);
    const scopix::HostPluginsManager manager(services, shell, scopix::ProfileFile(QString()));
    std::set_terminate(endForException);
    QString reason;
    const auto library = scopix::PluginLibrary::load(QApplication::arguments().value(1), reason);
    end(library ? QString() : reason);
}
