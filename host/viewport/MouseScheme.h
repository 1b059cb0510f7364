// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace scopix
{

/// Which buttons turn, move and come nearer in a 3D view: as here, or as in other programs.
enum class MouseScheme { Scopix, Blender, Godot, Maya };

enum class MouseDrag { None, Orbit, Pan, Zoom };

/// What a drag with this button does; None: nothing of its own.
MouseDrag dragOf(MouseScheme scheme, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

/// "scopix", "blender", "godot", "maya"; anything else is Scopix.
MouseScheme mouseSchemeFromName(const QString& name);

} // namespace scopix
