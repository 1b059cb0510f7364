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

const QString Degrees = QStringLiteral("degrees");
const QString Rotation = QStringLiteral("rotation");

} // namespace

bool PanelSettings::showsDegrees()
{
    return settings().value(Degrees, true).toBool();
}

void PanelSettings::setShowsDegrees(bool degrees)
{
    settings().setValue(Degrees, degrees);
}

RotationForm PanelSettings::rotationForm()
{
    return RotationForm(std::clamp(settings().value(Rotation, 0).toInt(), 0, 2));
}

void PanelSettings::setRotationForm(RotationForm form)
{
    settings().setValue(Rotation, int(form));
}

} // namespace inspector
