// SPDX-License-Identifier: MIT
// What the default plug-in adds to a program's start: the library, its extensions and their widgets, against
// the start of an empty Qt program. Each is measured as a process of its own.
//
//     plugin_load [runs]
#include "support/TestHost.h"

#include <scopix/SpxPlugin.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLibrary>
#include <QProcess>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

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

// The median of several runs, in milliseconds; negative where the program failed.
double milliseconds(const QString& program, const QString& what, int runs)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer clock;
        clock.start();
        if (QProcess::execute(program, {what}) != 0)
            return -1;
        times.push_back(double(clock.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && std::strcmp(argv[1], "--empty") == 0)
        return startEmpty(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--plugin") == 0)
        return startWithPlugin(argc, argv);
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    const QString self = QString::fromLocal8Bit(argv[0]);
    const double empty = milliseconds(self, QStringLiteral("--empty"), runs);
    const double loaded = milliseconds(self, QStringLiteral("--plugin"), runs);
    if (empty <= 0 || loaded <= 0) {
        std::fprintf(stderr, "plugin_load: a program that was to be measured failed\n");
        return 1;
    }
    std::printf("start of an empty Qt program            %8.1f ms\n", empty);
    std::printf("the same with the plug-in and all it has %8.1f ms\n", loaded);
    std::printf("ratio                                    %8.2f\n", loaded / empty);
    return 0;
}
