// SPDX-License-Identifier: MIT
#include "plugins/ManagedExtension.h"

#include "shell/HostShell.h"
#include "support/CatchExceptions.h"
#include "support/OutputTaps.h"

#include <scopix/SpxEditor.h>

namespace scopix
{

ManagedExtension::ManagedExtension(SpxExtension* extension, const QString& plugin, HostShell& shell,
                                   Report report)
    : m_extension(extension)
    , m_name(plugin + QLatin1Char('/') + QString::fromUtf8(extension->getName().getString()))
    , m_shell(&shell)
    , m_report(std::move(report))
    , m_editor(dynamic_cast<SpxEditor*>(extension) != nullptr)
{
}

void ManagedExtension::load()
{
    m_loaded = tryCall("load", [this] { m_extension->load(); });
}

void ManagedExtension::activate()
{
    if (m_editor || !m_loaded || m_active)
        return;
    m_shell->setActivating(m_extension);
    m_active = tryCall("activate", [this] { m_extension->activate(); });
    m_shell->setActivating(nullptr);
    if (!m_active)
        m_shell->forget(m_extension);
    else if (m_shell->comesUpHidden(m_extension) && m_extension->isShown())
        tryCall("hide", [this] { m_extension->hide(); });
}

void ManagedExtension::deactivate()
{
    if (!m_active)
        return;
    m_active = false;
    tryCall("deactivate", [this] { m_extension->deactivate(); });
    m_shell->forget(m_extension);
}

void ManagedExtension::unload()
{
    deactivate();
    if (!m_loaded)
        return;
    m_loaded = false;
    tryCall("unload", [this] { m_extension->unload(); });
}

bool ManagedExtension::tryCall(const char* act, const std::function<void()>& call) const
{
    const OutputStep step;
    const QString failure = catchExceptions(call);
    if (failure.isEmpty())
        return true;
    m_report(
        HostShell::tr("The extension “%1” failed in %2(): %3.").arg(m_name, QLatin1String(act), failure));
    return false;
}

} // namespace scopix
