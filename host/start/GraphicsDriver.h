// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// Version, renderer and vendor of OpenGL here, in one line; empty where there is none. GUI thread only.
QString graphicsDriver();

} // namespace scopix
