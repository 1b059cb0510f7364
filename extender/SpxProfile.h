// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>
#include <xsg/values/SbString.h>

#include <QList>

class SpxExtension;

/// What a profile holds for one extension.
class SPX_API SpxProfileSetting
{
public:
    /// The extensions that the profile controls, in the order in which the plug-ins registered them. Not
    /// owned.
    const QList<SpxExtension*>& getControlledExtensions() const { return m_controlled; }
    void setControlledExtensions(QList<SpxExtension*> extensions) { m_controlled = std::move(extensions); }

private:
    QList<SpxExtension*> m_controlled;
};

/// A named choice of extensions, and what one extension may use while it is active. Owned by the host.
class SPX_API SpxProfile
{
public:
    explicit SpxProfile(SbString name)
        : m_name(std::move(name))
    {
    }
    SpxProfile(const SpxProfile&) = delete;
    SpxProfile& operator=(const SpxProfile&) = delete;
    virtual ~SpxProfile();

    /// Latin-1.
    SbString getName() const { return m_name; }
    void setName(SbString name) { m_name = std::move(name); }

private:
    SbString m_name;
};
