// SPDX-License-Identifier: MIT
#pragma once

namespace scopix
{

/// Textures of every kind of picture file that the toolkit reads.
namespace TextureImageLoader
{

/// From now on the scene-graph library reads its textures' files through the toolkit.
void install();

} // namespace TextureImageLoader

} // namespace scopix
