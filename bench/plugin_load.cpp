// SPDX-License-Identifier: MIT
// What the default plug-in adds to a program's start: the library, its extensions and their widgets, against
// the start of an empty Qt program. Each is measured as a process of its own.
#include "Ratios.h"
#include "support/TestHost.h"

#include <scopix/SpxPlugin.h>

#include <QApplication>
#include <QLibrary>
#include <QProcess>
#include <QWidget>

#include <cstring>
#include <string>

namespace
{

int startEmpty(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.show();
    QApplication::processEvents();
    return 0;
}

int startWithPlugin(int argc, char** argv)
{
    QApplication application(argc, argv);
    TestHost host;
    QLibrary library(QStringLiteral(SCOPIX_PLUGIN));
    const auto load = reinterpret_cast<SpxPlugin* (*)()>(library.resolve("loadPlugin"));
    const auto unload = reinterpret_cast<void (*)()>(library.resolve("unloadPlugin"));
    if (!load || !unload)
        return 1;
    SpxPlugin* plugin = load();
    if (!plugin->load())
        return 1;
    const QList<SpxExtension*> extensions = plugin->getExtensions();
    for (SpxExtension* extension : extensions)
        extension->load();
    host.window().show();
    QApplication::processEvents();
    for (SpxExtension* extension : extensions)
        extension->unload();
    plugin->unload();
    unload();
    return extensions.isEmpty() ? 1 : 0;
}

/// A process of its own, from its start to its end.
void start(benchmark::State& state, const char* what)
{
    const QString self = QCoreApplication::applicationFilePath();
    for (auto _ : state) {
        if (QProcess::execute(self, {QString::fromLatin1(what)}) != 0)
            state.SkipWithError("The program that is measured failed.");
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--empty") == 0)
        return startEmpty(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--plugin") == 0)
        return startWithPlugin(argc, argv);
    const QCoreApplication application(argc, argv);
    for (const char* name : {"empty", "plugin"}) {
        const std::string option = std::string("--") + name;
        const auto measure = [option](benchmark::State& state) { start(state, option.c_str()); };
        benchmark::RegisterBenchmark(name, measure)->Unit(benchmark::kMillisecond)->UseRealTime();
    }
    return bench::run(
        argc, argv,
        {{"start with the plug-in and all it has / of an empty Qt program", "plugin", "empty", ""}});
}
