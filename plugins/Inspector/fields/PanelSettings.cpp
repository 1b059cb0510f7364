// SPDX-License-Identifier: MIT
#include "fields/PanelSettings.h"

#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace inspector
{

namespace
{

QSettings settings()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QSettings(folder + QStringLiteral("/scopix/inspector.ini"), QSettings::IniFormat);
}

// Qt keeps the keys beyond the end of the plug-in: they must not lie in its memory, as literals would.
QString key(const char* name)
{
    return QString::fromLatin1(name);
}

constexpr const char* Degrees = "degrees";
constexpr const char* Length = "lengthUnit";
constexpr const char* Digits = "digits";
constexpr int MostDigits = 17;
constexpr const char* Rotation = "rotation";
constexpr const char* Matrix = "matrix";
constexpr const char* Color = "color";

// The first one where the file has none that there is.
template <class Form>
Form formOf(const char* name, Form last)
{
    return Form(std::clamp(settings().value(key(name), 0).toInt(), 0, int(last)));
}

} // namespace

bool PanelSettings::showsDegrees()
{
    return settings().value(key(Degrees), true).toBool();
}

void PanelSettings::setShowsDegrees(bool degrees)
{
    settings().setValue(key(Degrees), degrees);
}

LengthUnit PanelSettings::lengthUnit()
{
    return formOf(Length, LengthUnit::Feet);
}

void PanelSettings::setLengthUnit(LengthUnit unit)
{
    settings().setValue(key(Length), int(unit));
}

int PanelSettings::digits()
{
    return std::clamp(settings().value(key(Digits), 0).toInt(), 0, MostDigits);
}

void PanelSettings::setDigits(int digits)
{
    settings().setValue(key(Digits), digits);
}

RotationForm PanelSettings::rotationForm()
{
    return formOf(Rotation, RotationForm::Quaternion);
}

void PanelSettings::setRotationForm(RotationForm form)
{
    settings().setValue(key(Rotation), int(form));
}

MatrixForm PanelSettings::matrixForm()
{
    return formOf(Matrix, MatrixForm::Parts);
}

void PanelSettings::setMatrixForm(MatrixForm form)
{
    settings().setValue(key(Matrix), int(form));
}

ColorForm PanelSettings::colorForm()
{
    return formOf(Color, ColorForm::Linear);
}

void PanelSettings::setColorForm(ColorForm form)
{
    settings().setValue(key(Color), int(form));
}

} // namespace inspector
