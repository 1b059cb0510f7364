// SPDX-License-Identifier: MIT
// Patches as files.
#pragma once

#include <xsg/changes/SceneChange.h>

#include <QString>

namespace scopix
{

/// The ending of their names, without a dot.
QString patchEnding();
/// One sentence where it cannot be read, and `changes` are as they were; else an empty text.
QString readPatch(const QString& path, xsg::SceneChanges& changes);
/// One sentence where it cannot be written, and the file is as it was; else an empty text.
QString writePatch(const QString& path, const xsg::SceneChanges& changes);

} // namespace scopix
