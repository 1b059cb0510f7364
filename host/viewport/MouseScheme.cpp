// SPDX-License-Identifier: MIT
#include "viewport/MouseScheme.h"

namespace scopix
{

namespace
{

struct Row {
    MouseScheme scheme;
    Qt::MouseButton button;
    Qt::KeyboardModifiers modifiers;
    MouseDrag drag;
};

// The first that fits holds; what is held besides its modifiers is no reason against it in Scopix's own.
const Row Rows[] = {
    {MouseScheme::Scopix, Qt::LeftButton, Qt::ShiftModifier, MouseDrag::Pan},
    {MouseScheme::Scopix, Qt::LeftButton, Qt::NoModifier, MouseDrag::Orbit},
    {MouseScheme::Scopix, Qt::MiddleButton, Qt::NoModifier, MouseDrag::Pan},
    {MouseScheme::Scopix, Qt::RightButton, Qt::NoModifier, MouseDrag::Pan},
    {MouseScheme::Blender, Qt::MiddleButton, Qt::ShiftModifier, MouseDrag::Pan},
    {MouseScheme::Blender, Qt::MiddleButton, Qt::ControlModifier, MouseDrag::Zoom},
    {MouseScheme::Blender, Qt::MiddleButton, Qt::NoModifier, MouseDrag::Orbit},
    {MouseScheme::Godot, Qt::MiddleButton, Qt::ShiftModifier, MouseDrag::Pan},
    {MouseScheme::Godot, Qt::MiddleButton, Qt::ControlModifier, MouseDrag::Zoom},
    {MouseScheme::Godot, Qt::MiddleButton, Qt::NoModifier, MouseDrag::Orbit},
    {MouseScheme::Godot, Qt::RightButton, Qt::NoModifier, MouseDrag::Orbit},
    {MouseScheme::Maya, Qt::LeftButton, Qt::AltModifier, MouseDrag::Orbit},
    {MouseScheme::Maya, Qt::MiddleButton, Qt::AltModifier, MouseDrag::Pan},
    {MouseScheme::Maya, Qt::RightButton, Qt::AltModifier, MouseDrag::Zoom},
};

} // namespace

MouseDrag dragOf(MouseScheme scheme, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    for (const Row& row : Rows)
        if (row.scheme == scheme && row.button == button && (modifiers & row.modifiers) == row.modifiers)
            return row.drag;
    return MouseDrag::None;
}

MouseScheme mouseSchemeFromName(const QString& name)
{
    if (name == QLatin1String("blender"))
        return MouseScheme::Blender;
    if (name == QLatin1String("godot"))
        return MouseScheme::Godot;
    return name == QLatin1String("maya") ? MouseScheme::Maya : MouseScheme::Scopix;
}

} // namespace scopix
