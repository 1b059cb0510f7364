// SPDX-License-Identifier: MIT
#include "panels/NodeIcons.h"

#include "text/NodeText.h"
#include "theme/SvgIcon.h"

#include <QHash>

namespace scopix
{

namespace
{

struct Family {
    const char* type; // and all derived types
    const char* icon;
};

// The first match counts, so derived types stand before their bases.
constexpr Family Families[] = {
    {"UnknownNode", "node-unknown"},
    {"LevelOfDetail", "node-level-of-detail"},
    {"Separator", "node-separator"},
    {"Switch", "node-switch"},
    {"Instances", "node-instances"},
    {"Animation", "node-animation"},
    {"Group", "node-group"},
    {"Spin", "node-spin"},
    {"Track", "node-track"},
    {"Skin", "node-skin"},
    {"Morph", "node-skin"},
    {"Transformation", "node-transform"},
    {"Material", "node-material"},
    {"PhysicalMaterial", "node-material"},
    {"Texture2", "node-texture"},
    {"TextureTransform", "node-texture"},
    {"Light", "node-light"},
    {"AmbientLight", "node-light"},
    {"EnvironmentLight", "node-light"},
    {"Camera", "node-camera"},
    {"Solid", "node-solid"},
    {"LineSet", "node-lines"},
    {"IndexedLineSet", "node-lines"},
    {"PointSet", "node-point-set"},
    {"IndexedPointSet", "node-point-set"},
    {"ScreenText", "node-text"},
    {"Shape", "node-shape"},
    {"TextureCoordinates", "node-points"},
    {"Points", "node-points"},
    {"Normals", "node-normals"},
    {"Info", "node-info"},
    {"Node", "node-property"},
};

QString findIconName(SoType type)
{
    const SoType own = SoType::fromName(toName(typeText(type))); // what it is most like
    for (const Family& family : Families) {
        if (own.isDerivedFrom(SoType::fromName(family.type)))
            return QLatin1String(family.icon);
    }
    return {};
}

// Looked up once per type: views ask for the icon of every row that they paint.
QString iconName(SoType type)
{
    static QHash<QString, QString> names;
    const QString typeName = toQString(type.getName());
    const auto known = names.constFind(typeName);
    return known != names.constEnd() ? *known : *names.insert(typeName, findIconName(type));
}

} // namespace

QIcon nodeIcon(SoType type, const QWidget* surface)
{
    return svgIcon(iconName(type), surface);
}

} // namespace scopix
