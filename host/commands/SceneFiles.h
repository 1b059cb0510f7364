// SPDX-License-Identifier: MIT
// Scenes and models of any kind that can be opened, and files of any kind that can be written.
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <string>
#include <vector>

namespace scopix
{

/// A scene that was read, or why it was not.
struct LoadedScene {
    SoRef<SoNode> root;             // null where it cannot be read
    std::string error;              // one sentence
    std::vector<std::string> notes; // on what was left out or changed
};

/// A scene file, or a model, which the program for that reads in a process of its own. Posted errors become
/// notes.
LoadedScene loadScene(const std::string& path);
/// The same, having said what is wrong. The scene lives until the process ends.
SoRef<SoNode> loadOrComplain(const std::string& path);

/// Models keep less than a scene has: edits are saved as scenes only.
enum class FileKinds { Scenes, ScenesAndModels };

/// Whether a file of this name may be written: its ending is that of such a kind, and what is there may be
/// replaced. "-" is standard output, as a scene file. Says why not.
bool canWriteScene(const std::string& path, FileKinds kinds = FileKinds::Scenes);
/// Says why it cannot be written, in which case nothing has changed. Names of pictures lead to the same files
/// as before.
bool writeScene(SoNode* root, const std::string& path);

} // namespace scopix
