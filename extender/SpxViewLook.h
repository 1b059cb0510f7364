// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QSize>

class SoCamera;

/// What a host with a 3D view may offer beyond SpxShell: how the view looks at the scene. GUI thread only.
class SPX_API SpxViewLook
{
public:
    /// Null where the host does not offer this.
    static SpxViewLook* getInstance();

    SpxViewLook(const SpxViewLook&) = delete;
    SpxViewLook& operator=(const SpxViewLook&) = delete;

    /// The view's own camera, in world coordinates: its fields change as the user moves, and another one may
    /// take its place. Null where there is no view.
    virtual const SoCamera* getViewCamera() const = 0;
    /// The view's picture, in pixels of the screen.
    virtual QSize getViewSize() const = 0;

protected:
    SpxViewLook() = default;
    virtual ~SpxViewLook();
};
