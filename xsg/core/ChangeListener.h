// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoNotification.h>
#include <xsg/values/XsgExport.h>

namespace xsg
{

/// What a field or a container calls when it changes. A listener adds itself, is not owned, and must take
/// itself out before it is destroyed. Belongs to the graph's thread.
class XSG_API ChangeListener
{
public:
    /// Called in the middle of the change: nothing may be written here, and no listener added or removed.
    virtual void changed(const SoNotification& change) = 0;
    /// The field or the container is being destroyed: the listener must take itself out before it returns.
    virtual void subjectDestroyed() = 0;

protected:
    ~ChangeListener() = default;
};

} // namespace xsg
