// SPDX-License-Identifier: MIT
// Frames of a running program in the log of frames, where docks and recordings find them.
#pragma once

#include <scopix/live/adapter/Adapter.h>

class SoFrameLog;

namespace scopix
{

/// Files them as frames of another program. Columns of names that no figure has are left out, and so are
/// numbers that can be none.
void logFrames(const live::FrameTable& frames, SoFrameLog& log);

} // namespace scopix
