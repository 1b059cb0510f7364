// SPDX-License-Identifier: MIT
#include "export/ExportNames.h"

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoFog.h>

#include <QCoreApplication>

namespace scopix
{

namespace
{

// Whoever reads models brings one like that.
bool isDefault(const SoEnvironmentLight& light)
{
    const SoRef<SoEnvironmentLight> plain(new SoEnvironmentLight);
    return light.skyColor.getValue() == plain->skyColor.getValue() &&
           light.horizonColor.getValue() == plain->horizonColor.getValue() &&
           light.groundColor.getValue() == plain->groundColor.getValue();
}

} // namespace

QString translated(const char* text)
{
    return QCoreApplication::translate("SceneExport", text);
}

// Names of nodes hold Latin-1.
std::string exportedName(const SoNode& node)
{
    return QString::fromLatin1(node.getName().getString()).toStdString();
}

QString lostKind(const SoNode& node)
{
    if (isA<SoEnvironmentLight>(node) && !isDefault(static_cast<const SoEnvironmentLight&>(node)))
        return translated("environment lights");
    if (isA<SoFog>(node))
        return translated("fogs");
    if (isA<SoAnimation>(node))
        return translated("animations");
    if (isA<SoSkin>(node))
        return translated("skins, whose present pose is kept");
    if (isA<SoMorph>(node))
        return translated("morph targets, whose present mix is kept");
    return isA<SoClipPlane>(node) ? translated("clip planes") : QString();
}

void moveTextureCoordinates(const SoState& state, SoGeometry& geometry)
{
    if (!state.textureMatrix)
        return;
    for (auto* coordinates : {&geometry.textureCoordinates, &geometry.secondTextureCoordinates}) {
        for (SbVec2f& at : *coordinates) {
            const SbVec3f moved = state.textureMatrix->front().multPoint({at[0], at[1], 0});
            at = SbVec2f(moved[0], moved[1]);
        }
    }
}

} // namespace scopix
