// SPDX-License-Identifier: MIT
// Small pictures that tell kinds of nodes apart at a glance. Readable on light and dark grounds.
#pragma once

#include <xsg/types/SoType.h>

class QIcon;

namespace scopix
{

/// Drawn once per type and kept.
QIcon nodeIcon(SoType type);

} // namespace scopix
