// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <scopix/SpxProfile.h>

#include <QObject>

/// A tool that a plug-in adds to the host. The host drives it: load() once, then activate() and deactivate()
/// as profiles ask for it, show() and hide() as the user does, unload() once at the end. GUI thread only.
class SPX_API SpxExtension : public QObject
{
    Q_OBJECT

public:
    ~SpxExtension() override;

    /// Overrides call the base's activate, deactivate, hide and show, which update isActive() and isShown().
    virtual void activate();
    virtual void deactivate();
    virtual void hide();
    virtual void load() = 0; // makes the widgets
    virtual void show();
    virtual void unload() = 0; // frees what load() made

    SbString getName() const { return m_name; }
    SbString getDescription() const { return m_description; }
    SbString getVendor() const { return m_vendor; }
    SbString getVersion() const { return m_version; }

    /// What the active profile holds for this extension; never null.
    const SpxProfileSetting* getProfileSetting() const;

    bool isActive() const { return m_active; }
    bool isShown() const { return m_shown; }

signals:
    void activeChanged(bool active);
    void shownChanged(bool shown);

protected:
    SpxExtension();
    void setName(SbString name) { m_name = std::move(name); }
    void setDescription(SbString description) { m_description = std::move(description); }
    void setVendor(SbString vendor) { m_vendor = std::move(vendor); }
    void setVersion(SbString version) { m_version = std::move(version); }

private:
    void setActive(bool active);
    void setShown(bool shown);

    SbString m_name;
    SbString m_description;
    SbString m_vendor;
    SbString m_version;
    bool m_active = false;
    bool m_shown = false;
};
