// SPDX-License-Identifier: MIT
#pragma once

namespace inspector
{

enum class RotationForm { AxisAngle, Euler, Quaternion };
enum class MatrixForm { Grid, Parts };
enum class LengthUnit { Metres, Centimetres, Millimetres, Inches, Feet };
enum class ColorForm { Rgb, Hsv, Hex, Linear };

/// What the user chose for all panels; kept in the user's settings.
struct PanelSettings {
    static bool showsDegrees();
    static void setShowsDegrees(bool degrees);
    static LengthUnit lengthUnit();
    static void setLengthUnit(LengthUnit unit);
    /// How many digits of a number are shown; 0: all that it takes to read it back.
    static int digits();
    static void setDigits(int digits);
    static RotationForm rotationForm();
    static void setRotationForm(RotationForm form);
    static MatrixForm matrixForm();
    static void setMatrixForm(MatrixForm form);
    static ColorForm colorForm();
    static void setColorForm(ColorForm form);
};

} // namespace inspector
