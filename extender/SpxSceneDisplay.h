// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QList>

class SoNode;
class SoShapeColors;

/// What a host with a 3D view may offer beyond SpxShell: which of the scene is seen, and in which colours,
/// with nothing written to the scene. GUI thread only.
class SPX_API SpxSceneDisplay
{
public:
    /// Null where the host does not offer this.
    static SpxSceneDisplay* getInstance();

    SpxSceneDisplay(const SpxSceneDisplay&) = delete;
    SpxSceneDisplay& operator=(const SpxSceneDisplay&) = delete;

    /// Those nodes of the open scene that are hidden, each with all that is below it.
    virtual QList<SoNode*> getHiddenNodes() const = 0;
    /// As the eye of its row in the scene tree does. Nothing for what cannot be hidden, such as a transform.
    virtual void setHidden(SoNode* node, bool hidden) = 0;

    /// The 3D view draws shapes in these colours; with none, or when another scene is opened, in their own
    /// look. They are copied.
    virtual void setShapeColors(const SoShapeColors& colors) = 0;
    /// The 3D view shows how often each pixel is drawn, whatever the user has chosen in its menu.
    virtual void setOverdrawShown(bool on) = 0;

    /// Where only some nodes of the open scene are seen, each with all that is below it: these; else none.
    virtual QList<SoNode*> getIsolatedNodes() const = 0;

protected:
    SpxSceneDisplay() = default;
    virtual ~SpxSceneDisplay();
};
