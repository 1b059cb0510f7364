// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveExport.h>

namespace osgViewer
{
class ViewerBase;
}

namespace scopix::live
{

/// Lets inspectors attach to this program and see the scene of the viewer: one line before the first frame.
/// Several viewers are shown side by side. Nothing is drawn or kept while nobody is attached.
///
/// Call it in the thread that draws frames. The viewer may end at any time. Throws nothing.
SCOPIX_LIVE_API void inspect(osgViewer::ViewerBase& viewer) noexcept;

} // namespace scopix::live
