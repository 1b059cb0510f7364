// SPDX-License-Identifier: MIT
#pragma once

class SoNode;

namespace scopix
{

/// Textures of every kind of picture file that Qt reads.
namespace TextureImageLoader
{

/// From now on the textures in this scene read their files through Qt; other scenes in the process keep their
/// way.
void useFor(SoNode* root);

} // namespace TextureImageLoader

} // namespace scopix
