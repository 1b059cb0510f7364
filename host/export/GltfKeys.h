// SPDX-License-Identifier: MIT
#pragma once

#include "export/GltfContent.h"

#include <optional>

class SoTrack;

namespace scopix
{

/// A property of the format's nodes that a field of the scene is.
struct GltfProperty {
    const char* name; // null for none
    const char* type; // of its values
    int width;
};
GltfProperty propertyOf(const SoTrack& track);

/// The track's keys as the format takes them, whose time begins at 0; nothing for those that it cannot take.
std::optional<GltfContent::Keys> keysOf(const SoTrack& track);

} // namespace scopix
