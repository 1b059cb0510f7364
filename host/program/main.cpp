// SPDX-License-Identifier: MIT
// The program: runs a command without a window, or reads the command line, chooses the window system and
// hands over to the host.
#include "program/EndOfSession.h"

#include <scopix-host/Commands.h>
#include <scopix-host/HostApplication.h>

#include <QApplication>
#include <QFont>

#include <cstdio>

namespace
{

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
}

void print(std::FILE* out, const QString& text)
{
    std::fprintf(out, "%s\n", qPrintable(text));
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// A picture looks the same everywhere when it is drawn off the screen.
bool chooseWindowSystem(const scopix::CommandLine& line)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return true;
    if (line.isForPictures() || (line.isUnattended() && !hasDisplay()))
        return qputenv("QT_QPA_PLATFORM", "offscreen");
    return hasDisplay();
}

int run(const scopix::CommandLine& line)
{
    using scopix::EndOfSession;
    scopix::HostApplication host;
    host.tryPluginsFirst();
    const EndOfSession end(
        [&host](EndOfSession::Widgets widgets) { host.keepEdits(widgets == EndOfSession::Widgets::Usable); });
    return host.run(line);
}

} // namespace

int main(int argc, char** argv)
{
    if (scopix::Commands::isCommand(argc, argv))
        return scopix::Commands::run(argc, argv);
    const scopix::CommandLine line = scopix::CommandLine::parse(argumentsOf(argc, argv));
    if (!line.error.isEmpty()) {
        print(stderr, QStringLiteral("scopix: ") + line.error);
        return 2;
    }
    if (line.help || line.version) {
        const QCoreApplication application(argc, argv);
        scopix::HostApplication::speakUsersLanguage();
        print(stdout, line.help ? scopix::CommandLine::helpText() : scopix::CommandLine::versionText());
        return 0;
    }
    if (line.listsLive) {
        std::fputs(scopix::CommandLine::liveText().toLocal8Bit().constData(), stdout);
        return 0;
    }
    if (!line.save.isEmpty())
        return scopix::Commands::save(line);
    if (!chooseWindowSystem(line)) {
        print(stderr,
              QCoreApplication::translate(
                  "main", "scopix: There is no display to open a window on; --screenshot OUT.png writes a "
                          "picture of the window without one."));
        return 1;
    }
    if (line.counters)
        qunsetenv("XSG_PERFCOUNTER_ENABLE"); // which would win over what the option asks for
    int noOptions = 1;                       // "--plugin" means something else to Qt
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps); // icons in the density of the screen
    QApplication::setStyle(QStringLiteral("Fusion")); // what the window would set for each of its widgets
    QApplication application(noOptions, argv);
    QApplication::setApplicationName(QStringLiteral("scopix"));
    QApplication::setApplicationDisplayName(QStringLiteral("Scopix"));
    QApplication::setApplicationVersion(QStringLiteral(SCOPIX_VERSION));
    // What the inspector gives its window off the screen, for what measures itself before it is in that
    // window.
    if (QApplication::platformName() == QLatin1String("offscreen"))
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    // Not before: what is printed, but for --help, is read by programs (decisions.md: commands-in-english).
    scopix::HostApplication::speakUsersLanguage();
    return scopix::EndOfSession::endWith(run(line));
}
