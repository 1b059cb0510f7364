// SPDX-License-Identifier: MIT
#pragma once

#include "profiles/ProfileFile.h"

#include <QHash>
#include <QObject>

#include <memory>
#include <vector>

namespace scopix
{

/// An extension as the profiles know it.
struct ProfiledExtension {
    SpxExtension* extension = nullptr;
    QString name; // "Plug-in/Extension"
    bool isEditor = false;
    bool isLoaded = true; // false: its load() failed, and no profile controls it
};

/// The profiles and which of them is active, kept in a file. Knows which extensions each profile controls,
/// and switches none of them. "Default", which controls everything, is always there. Owns the profiles. GUI
/// thread only.
class ProfileList : public QObject
{
    Q_OBJECT

public:
    /// Has only "Default" until read() is called.
    explicit ProfileList(ProfileFile file = ProfileFile(ProfileFile::standardPath()));
    ~ProfileList() override;

    /// Takes what the file holds. A damaged file is reported by failed().
    void read();

    const std::vector<std::unique_ptr<HostProfile>>& profiles() const { return m_profiles; }
    HostProfile* findProfile(const QString& name) const;
    HostProfile* activeProfile() const { return m_active; }
    /// Makes the profile active and writes that down; profiles that other sessions have added by then join
    /// the list. One that is not in the list is ignored.
    void setActiveProfile(const SpxProfile* profile);
    /// Makes a profile of this name active for this session only, without writing it down.
    bool useProfile(const QString& name);
    /// Replaces all choices and writes them down. Profiles of the same name stay the same objects; where the
    /// active one is not among them, "Default" becomes active. "Default" itself always stays. What other
    /// sessions have changed since the choices were `base`, or those of this list, is kept; see
    /// mergeProfiles().
    void setProfiles(std::vector<ProfileChoice> choices, const QString& active);
    void setProfiles(std::vector<ProfileChoice> choices, const QString& active,
                     const std::vector<ProfileChoice>& base);
    std::vector<ProfileChoice> choices() const;

    /// The extensions that there are, in the order of their registration. Not owned.
    const std::vector<ProfiledExtension>& extensions() const { return m_extensions; }
    void setExtensions(std::vector<ProfiledExtension> extensions);

    /// Deletes the profiles that are no longer in the list. A slot of changed() may still hold one, so
    /// whoever switches the extensions calls it afterwards.
    void deleteRetired() { m_retired.clear(); }

signals:
    /// The list, a name or a choice changed.
    void changed();
    /// Another profile is active, or the active one has another choice.
    void activeChanged();
    /// Something went wrong; one sentence.
    void failed(const QString& sentence);

private:
    void adopt(std::vector<ProfileChoice> choices, const QString& active);
    void replaceProfiles(std::vector<ProfileChoice> choices);
    void makeActive(HostProfile* profile, bool remember);
    void fillSettings();
    void rememberActive();
    std::vector<ProfileChoice> inFile(const std::vector<ProfileChoice>& base) const;
    QString write(ProfileSettings& settings, const std::vector<ProfileChoice>& base,
                  const std::function<void(ProfileSettings&)>& act);

    ProfileFile m_file;
    std::vector<ProfileChoice> m_inFile; // when it was last read or written
    std::vector<std::unique_ptr<HostProfile>> m_profiles;
    std::vector<std::unique_ptr<HostProfile>> m_retired;
    QHash<QString, HostProfile*> m_byName; // those of m_profiles
    std::vector<ProfiledExtension> m_extensions;
    HostProfile* m_active = nullptr;
    QString m_rememberedActive; // the one that this session has written down, or found
};

} // namespace scopix
