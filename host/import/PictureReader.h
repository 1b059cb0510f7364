// Textures of every kind of picture file that the toolkit reads.
#pragma once

namespace PictureReader
{

// From now on the scene-graph library reads its textures' files through the toolkit.
void install();

} // namespace PictureReader
