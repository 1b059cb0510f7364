// SPDX-License-Identifier: MIT
#include <xsg/registry/NodeTypes.h>

#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/base/SoInfo.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/groups/SoInstances.h>
#include <xsg/nodes/groups/SoLevelOfDetail.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/lights/SoAmbientLight.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/lights/SoPointLight.h>
#include <xsg/nodes/lights/SoSpotLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoFog.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoSecondTextureCoordinates.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/properties/SoTextureCoordinates.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/shapes/SoCone.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoCylinder.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/nodes/shapes/SoIndexedLineSet.h>
#include <xsg/nodes/shapes/SoIndexedPointSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/shapes/SoIndexedTriangleStripSet.h>
#include <xsg/nodes/shapes/SoLineSet.h>
#include <xsg/nodes/shapes/SoPointSet.h>
#include <xsg/nodes/shapes/SoScreenText.h>
#include <xsg/nodes/shapes/SoShape.h>
#include <xsg/nodes/shapes/SoSolid.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/shapes/SoTriangleSet.h>
#include <xsg/nodes/shapes/SoTriangleStripSet.h>
#include <xsg/nodes/shapes/SoVertexShape.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoSpin.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/nodes/transforms/SoTransformation.h>

namespace
{

template <class... Nodes>
void registerAll()
{
    (Nodes::getClassTypeId(), ...);
}

} // namespace

// One line per node type.
void xsg::registerNodeTypes()
{
    registerAll<SoAmbientLight, SoAnimation, SoCamera, SoClipPlane, SoComplexity, SoCone, SoCube, SoCylinder,
                SoDirectionalLight, SoDrawStyle, SoDrawingCallback, SoEnvironmentLight, SoFog, SoGroup,
                SoIndexedLineSet, SoIndexedPointSet, SoIndexedTriangleSet, SoIndexedTriangleStripSet, SoInfo,
                SoInstances, SoLevelOfDetail, SoLight, SoLineSet, SoMaterial, SoMaterialTexture,
                SoMatrixTransform, SoMorph, SoNormals, SoOrthographicCamera, SoPerspectiveCamera,
                SoPhysicalMaterial, SoPointLight, SoPointSet, SoPoints, SoScreenText,
                SoSecondTextureCoordinates, SoSeparator, SoShape, SoSkin, SoSolid, SoSphere, SoSpin,
                SoSpotLight, SoSwitch, SoTexture2, SoTextureCoordinates, SoTextureTransform, SoTrack,
                SoTransform, SoTransformation, SoTriangleSet, SoTriangleStripSet, SoUnknownNode,
                SoVertexShape>();
}
