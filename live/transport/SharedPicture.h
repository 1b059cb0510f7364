// SPDX-License-Identifier: MIT
// The pixels of a picture in memory that is handed over with a message, instead of being copied through the
// socket.
#pragma once

#include "FileDescriptor.h"

#include <scopix/live/adapter/Adapter.h>

namespace scopix::live
{

/// No picture is wider or higher, in pixels.
constexpr std::uint32_t LargestPicture = 8192;

/// Memory with the pixels, sealed so that it can neither shrink nor change any more. None where the system
/// has no memory left or the picture is not whole.
FileDescriptor sharedPixels(const Picture& picture);

/// The picture in memory that came with its size. None where it is not sealed, too small for that or too
/// large: reading it could end this process otherwise.
std::optional<Picture> pictureIn(const FileDescriptor& memory, std::uint32_t width, std::uint32_t height);

} // namespace scopix::live
