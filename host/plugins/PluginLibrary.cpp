// SPDX-License-Identifier: MIT
#include "plugins/PluginLibrary.h"

#include "language/Languages.h"
#include "plugins/LibraryTrust.h"
#include "plugins/PluginNote.h"
#include "support/CatchExceptions.h"

#include <scopix/SpxPlugin.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <utility>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("PluginLibrary", text);
}

template <class Function>
QString resolve(QLibrary& library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
    return function ? QString() : tr("it has no entry point “%1”").arg(QLatin1String(name));
}

} // namespace

PluginLibrary::PluginLibrary(const QString& path)
    : m_library(path)
{
    // What the library lacks is found now and not in the middle of the work.
    m_library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
}

PluginLibrary::~PluginLibrary()
{
    unload();
    if (m_library.isLoaded())
        m_library.unload();
}

QString PluginLibrary::whyNot(const QString& path)
{
    if (!QFileInfo::exists(path))
        return tr("there is no such file");
    if (QFileInfo(path).isDir())
        return tr("it is a folder, and a plug-in library was expected");
    if (!QFileInfo(path).isFile()) // a pipe keeps whoever opens it waiting
        return tr("it is no regular file");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("the file may not be read");
    const QString distrust = LibraryTrust().whyNot(path);
    return distrust.isEmpty() ? whyNotLoadable(file) : distrust;
}

std::unique_ptr<PluginLibrary> PluginLibrary::load(const QString& path, QString& reason)
{
    reason = whyNot(path);
    if (!reason.isEmpty())
        return nullptr;
    std::unique_ptr<PluginLibrary> library(new PluginLibrary(QFileInfo(path).canonicalFilePath()));
    reason = library->open();
    if (reason.isEmpty())
        reason = library->makePlugin();
    return reason.isEmpty() ? std::move(library) : nullptr;
}

QString PluginLibrary::unload()
{
    return std::exchange(m_plugin, nullptr) ? catchExceptions([this] { m_unload(); }) : QString();
}

QString PluginLibrary::name() const
{
    const QString own = QString::fromUtf8(m_plugin->getName().getString());
    return own.isEmpty() ? QFileInfo(path()).completeBaseName() : own;
}

QString PluginLibrary::open()
{
    if (!m_library.load())
        return tr("it is no library that this program can load (%1)").arg(m_library.errorString());
    if (Languages* languages = Languages::instance())
        languages->add(QFileInfo(m_library.fileName()).baseName().remove(QRegularExpression("^lib")));
    const QString missing = resolve(m_library, "loadPlugin", m_load);
    return missing.isEmpty() ? resolve(m_library, "unloadPlugin", m_unload) : missing;
}

QString PluginLibrary::makePlugin()
{
    const QString thrown = catchExceptions([this] { m_plugin = m_load(); });
    if (!thrown.isEmpty())
        return tr("its loadPlugin failed: %1").arg(thrown);
    return m_plugin ? QString() : tr("its loadPlugin returned no plug-in");
}

} // namespace scopix
