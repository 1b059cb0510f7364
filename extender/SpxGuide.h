// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QString>

/// What a shell may offer beyond SpxShell: leading the user to what a tool refers to. GUI thread only.
class SPX_API SpxGuide
{
public:
    /// Null where the host does not offer this.
    static SpxGuide* getInstance();

    SpxGuide(const SpxGuide&) = delete;
    SpxGuide& operator=(const SpxGuide&) = delete;

    /// Looks for this in the scene, as if the user had typed it into the line above the tree; as in
    /// "shininess=0.2".
    virtual void find(const QString& query) = 0;
    /// Opens a page of the documentation in a window, without a network: one that is installed with the host,
    /// by its name, as in "nodes", or a file of Markdown by its full path. `section` is a heading on it, as
    /// in "Material"; empty for the start. False when there is no such page.
    virtual bool showHelp(const QString& page, const QString& section) = 0;

protected:
    SpxGuide() = default;
    virtual ~SpxGuide();
};
