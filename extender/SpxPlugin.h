// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/values/SbString.h>

#include <QList>

class SpxExtension;

/// What a plug-in library hands to the host. The library exports two entry points under plain names:
///
///     extern "C" SpxPlugin* loadPlugin();      // makes the plug-in object
///     extern "C" void unloadPlugin();          // deletes it
///
/// and states by SPX_PLUGIN_NOTE (SpxPluginNote.h) what it was made for, which the host checks before it runs
/// any code of the library; a library without that note is loaded unchecked.
///
/// The host then calls load(), reads the extensions, and calls unload() before unloadPlugin(). GUI thread
/// only.
class SPX_API SpxPlugin
{
public:
    SpxPlugin();
    SpxPlugin(const SpxPlugin&) = delete;
    SpxPlugin& operator=(const SpxPlugin&) = delete;

    /// Overrides add their extensions, then call this one. False: the plug-in cannot be used.
    virtual bool load();
    virtual void unload();
    virtual ~SpxPlugin();

    /// The plug-in keeps ownership. Order of adding is the order in which the host drives the extensions.
    void addExtension(SpxExtension* extension);
    const QList<SpxExtension*>& getExtensions() const { return m_extensions; }

    SbString getName() const { return m_name; }
    SbString getDescription() const { return m_description; }
    SbString getVendor() const { return m_vendor; }
    SbString getVersion() const { return m_version; }
    SbString getCopyright() const { return m_copyright; }
    SbString getHomepage() const { return m_homepage; }

protected:
    void setName(SbString name) { m_name = std::move(name); }
    void setDescription(SbString description) { m_description = std::move(description); }
    void setVendor(SbString vendor) { m_vendor = std::move(vendor); }
    void setVersion(SbString version) { m_version = std::move(version); }
    void setCopyright(SbString copyright) { m_copyright = std::move(copyright); }
    void setHomepage(SbString homepage) { m_homepage = std::move(homepage); }

private:
    SbString m_name;
    SbString m_description;
    SbString m_vendor;
    SbString m_version;
    SbString m_copyright;
    SbString m_homepage;
    QList<SpxExtension*> m_extensions;
};
