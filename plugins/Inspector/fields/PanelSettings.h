// SPDX-License-Identifier: MIT
#pragma once

namespace inspector
{

enum class RotationForm { AxisAngle, Euler, Quaternion };

/// What the user chose for all panels; kept in the user's settings.
struct PanelSettings {
    static bool showsDegrees();
    static void setShowsDegrees(bool degrees);
    static RotationForm rotationForm();
    static void setRotationForm(RotationForm form);
};

} // namespace inspector
