// SPDX-License-Identifier: MIT
// The names of picture files in a scene, which may be relative to the folder of the scene's own file.
#pragma once

#include <vector>

class QString;
class SoNode;
class SoTexture2;

namespace scopix
{

/// Relative names start from this folder.
void setPictureFolder(SoNode* root, const QString& folder);
void setPictureFolder(const std::vector<SoTexture2*>& textures, const QString& folder);
/// The same, and names that started from another folder are changed to lead to the same files as before.
/// Names that lead nowhere, and absolute ones, stay as they are.
void movePictures(SoNode* root, const QString& folder);

} // namespace scopix
