// SPDX-License-Identifier: MIT
// Icons that distinguish the families of nodes.
#pragma once

#include <xsg/types/SoType.h>

class QIcon;
class QWidget;

namespace scopix
{

/// The icon of the type, or of the nearest base type that has one. `surface` as for svgIcon().
QIcon nodeIcon(SoType type, const QWidget* surface);

} // namespace scopix
