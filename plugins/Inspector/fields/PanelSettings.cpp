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
constexpr const char* Rotation = "rotation";

} // namespace

bool PanelSettings::showsDegrees()
{
    return settings().value(key(Degrees), true).toBool();
}

void PanelSettings::setShowsDegrees(bool degrees)
{
    settings().setValue(key(Degrees), degrees);
}

RotationForm PanelSettings::rotationForm()
{
    return RotationForm(std::clamp(settings().value(key(Rotation), 0).toInt(), 0, 2));
}

void PanelSettings::setRotationForm(RotationForm form)
{
    settings().setValue(key(Rotation), int(form));
}

} // namespace inspector
