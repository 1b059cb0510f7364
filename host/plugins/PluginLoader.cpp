// SPDX-License-Identifier: MIT
#include "plugins/PluginLoader.h"

#include "services/HostServices.h"
#include "shell/HostShell.h"
#include "support/CatchExceptions.h"
#include "support/OutputTaps.h"

#include <scopix/SpxPlugin.h>

#include <QCoreApplication>
#include <QEvent>
#include <QFileInfo>

#include <algorithm>

namespace scopix
{

PluginLoader::PluginLoader(HostServices& services, HostShell& shell)
    : m_services(services)
    , m_shell(shell)
{
}

PluginLoader::~PluginLoader() = default;

bool PluginLoader::load(const QString& path)
{
    const OutputStep step;
    QString reason;
    std::unique_ptr<PluginLibrary> library = PluginLibrary::load(path, reason);
    if (!library) {
        emit failed(notLoaded(path, reason));
        return false;
    }
    if (!startPlugin(*library))
        return false;
    adoptExtensions(*library);
    m_paths.insert(library->path());
    m_libraries.push_back(std::move(library));
    emit extensionsChanged();
    return true;
}

bool PluginLoader::isLoaded(const QString& path) const
{
    return m_paths.contains(QFileInfo(path).canonicalFilePath());
}

QString PluginLoader::notLoaded(const QString& path, const QString& reason)
{
    return tr("The plug-in “%1” was not loaded: %2.").arg(path, reason);
}

bool PluginLoader::startPlugin(PluginLibrary& library)
{
    bool usable = false;
    QString why = catchExceptions([&] { usable = library.plugin()->load(); });
    if (usable && why.isEmpty())
        return true;
    if (why.isEmpty())
        why = tr("it says that it cannot be used");
    emit failed(notLoaded(library.path(), tr("its load() failed: %1").arg(why)));
    catchExceptions([&] { library.plugin()->unload(); }); // it has been reported already
    return false;
}

void PluginLoader::adoptExtensions(const PluginLibrary& library)
{
    const auto report = [this](const QString& sentence) { emit failed(sentence); };
    for (SpxExtension* extension : library.plugin()->getExtensions()) {
        m_known.insert(extension);
        m_extensions.emplace_back(extension, library.name(), m_shell, report);
        m_extensions.back().load();
    }
}

void PluginLoader::unloadAll()
{
    unloadExtensions();
    for (auto library = m_libraries.rbegin(); library != m_libraries.rend(); ++library)
        reportUnload(**library, "unload", catchExceptions([&] { (*library)->plugin()->unload(); }));
    // Deletions that the plug-ins deferred run their code, which is about to leave the process.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_services.history().clearAll();
    m_paths.clear();
    while (!m_libraries.empty()) {
        const OutputStep step;
        reportUnload(*m_libraries.back(), "unloadPlugin", m_libraries.back()->unload());
        m_libraries.pop_back();
    }
}

void PluginLoader::reportUnload(const PluginLibrary& library, const char* act, const QString& why)
{
    if (!why.isEmpty())
        emit failed(tr("The plug-in “%1” failed in %2(): %3.").arg(library.path(), QLatin1String(act), why));
}

void PluginLoader::unloadExtensions()
{
    deactivateAll();
    std::for_each(m_extensions.rbegin(), m_extensions.rend(), [](ManagedExtension& each) { each.unload(); });
    m_extensions.clear();
    m_known.clear();
    emit extensionsChanged();
}

void PluginLoader::deactivateAll()
{
    std::for_each(m_extensions.rbegin(), m_extensions.rend(),
                  [](ManagedExtension& each) { each.deactivate(); });
}

QStringList PluginLoader::names() const
{
    QStringList names;
    for (const auto& library : m_libraries)
        names += library->name();
    return names;
}

} // namespace scopix
