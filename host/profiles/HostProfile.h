// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxProfile.h>

#include <QStringList>

namespace scopix
{

/// Either all extensions of a kind or those named.
struct ExtensionChoice {
    bool all = false;
    QStringList names; // "Plug-in/Extension", or "Plug-in/*" for all of one

    bool contains(const QString& name) const;
    bool operator==(const ExtensionChoice& other) const { return all == other.all && names == other.names; }
};

struct ProfileChoice {
    QString name;
    ExtensionChoice editors;
    ExtensionChoice tools; // extensions other than editors

    bool operator==(const ProfileChoice& other) const
    {
        return name == other.name && editors == other.editors && tools == other.tools;
    }
};

/// A profile and its choice of extensions. The choice is kept by name, so that it outlives a plug-in that is
/// missing today. Extensions are named "Plug-in/Extension".
class HostProfile : public SpxProfile
{
public:
    explicit HostProfile(ProfileChoice choice);

    const ProfileChoice& choice() const { return m_choice; }
    void setChoice(ProfileChoice choice);
    /// Whether the choice names the extension; `name` is "Plug-in/Extension".
    bool controls(const QString& name, bool isEditor) const;
    QString name() const { return m_choice.name; }
    /// The profile that controls everything; it cannot be changed or deleted.
    bool isDefault() const { return m_choice.name == defaultName(); }
    static QString defaultName() { return QStringLiteral("Default"); }

    const SpxProfileSetting& setting() const { return m_setting; }
    SpxProfileSetting& setting() { return m_setting; }

private:
    ProfileChoice m_choice;
    SpxProfileSetting m_setting;
};

} // namespace scopix
