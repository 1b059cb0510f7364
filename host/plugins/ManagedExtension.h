// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class SpxExtension;

namespace scopix
{

class HostShell;

/// One extension of a loaded plug-in, and its state: loaded, active. Every call into it catches
/// exceptions and reports them in a sentence. GUI thread only.
class ManagedExtension
{
public:
    using Report = std::function<void(const QString& sentence)>;

    ManagedExtension(SpxExtension* extension, const QString& plugin, HostShell& shell, Report report);

    SpxExtension* extension() const { return m_extension; }
    /// "Plug-in/Extension".
    const QString& name() const { return m_name; }
    /// Editors are activated by the docks that show them, never by the host.
    bool isEditor() const { return m_editor; }
    bool isActive() const { return m_active; }
    bool isLoaded() const { return m_loaded; }

    void load();
    void activate();
    void deactivate();
    void unload();

private:
    bool tryCall(const char* act, const std::function<void()>& call) const;

    SpxExtension* m_extension;
    QString m_name;
    HostShell* m_shell;
    Report m_report;
    bool m_editor;
    bool m_loaded = false;
    bool m_active = false;
};

} // namespace scopix
