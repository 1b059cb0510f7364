// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/HostPluginsManager.h"
#include "services/HostServices.h"
#include "shell/HostShell.h"

#include <QApplication>
#include <QMainWindow>
#include <QStringList>
#include <QTemporaryDir>

using namespace scopix;

inline QString testPlugin(const char* variant)
{
    return QStringLiteral(TEST_PLUGINS "TestPlugin") + QLatin1String(variant) + QStringLiteral(".so");
}

inline QStringList takePluginLog()
{
    const QStringList log = qApp->property("pluginLog").toStringList();
    qApp->setProperty("pluginLog", QStringList());
    return log;
}

inline void runLoop()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

/// The test plug-ins, and a host around them.
///
/// Services, window, shell and manager, with the profiles in a folder of their own.
struct PluginHost {
    PluginHost()
    {
        takePluginLog();
        QObject::connect(&manager, &HostPluginsManager::failed,
                         [this](const QString& sentence) { failures += sentence; });
        QObject::connect(&shell, &HostShell::failed,
                         [this](const QString& sentence) { failures += sentence; });
        window.show();
    }
    QString profilesPath() const { return folder.filePath(QStringLiteral("scopix/profiles.json")); }

    QTemporaryDir folder;
    QStringList failures;
    HostServices services;
    QMainWindow window;
    HostShell shell{window};
    HostPluginsManager manager{services, shell, ProfileFile(profilesPath()),
                               PluginRecords(folder.filePath(QStringLiteral("plugins")))};
};
