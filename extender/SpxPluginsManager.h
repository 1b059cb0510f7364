// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxProfile.h>

/// The host's profiles, as extensions see them. The host derives from it and makes one instance.
/// GUI thread only.
class SPX_API SpxPluginsManager
{
public:
    /// Null while no host has made one.
    static SpxPluginsManager* getInstance();

    SpxPluginsManager(const SpxPluginsManager&) = delete;
    SpxPluginsManager& operator=(const SpxPluginsManager&) = delete;

    virtual QList<SpxProfile*> getProfilesList() const = 0;
    virtual SpxProfile* getActiveProfile() const = 0;
    /// Changes getActiveProfile() at once; extensions are switched when the caller has returned to the event
    /// loop.
    virtual void setActiveProfile(SpxProfile* profile) = 0;
    /// What the active profile holds for this extension; null for one that it does not know.
    virtual const SpxProfileSetting* getProfileSetting(const SpxExtension* extension) const = 0;

protected:
    SpxPluginsManager();
    virtual ~SpxPluginsManager();
};
