#include <xsg/nodes/NodeTypes.h>

#include <xsg/nodes/SoAmbientLight.h>
#include <xsg/nodes/SoCamera.h>
#include <xsg/nodes/SoClipPlane.h>
#include <xsg/nodes/SoComplexity.h>
#include <xsg/nodes/SoCone.h>
#include <xsg/nodes/SoCube.h>
#include <xsg/nodes/SoCylinder.h>
#include <xsg/nodes/SoDirectionalLight.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoDrawingCallback.h>
#include <xsg/nodes/SoFieldGallery.h>
#include <xsg/nodes/SoFog.h>
#include <xsg/nodes/SoGroup.h>
#include <xsg/nodes/SoIndexedLineSet.h>
#include <xsg/nodes/SoIndexedPointSet.h>
#include <xsg/nodes/SoIndexedTriangleSet.h>
#include <xsg/nodes/SoIndexedTriangleStripSet.h>
#include <xsg/nodes/SoInfo.h>
#include <xsg/nodes/SoInstances.h>
#include <xsg/nodes/SoLevelOfDetail.h>
#include <xsg/nodes/SoLight.h>
#include <xsg/nodes/SoLineSet.h>
#include <xsg/nodes/SoMaterial.h>
#include <xsg/nodes/SoMatrixTransform.h>
#include <xsg/nodes/SoNormals.h>
#include <xsg/nodes/SoOrthographicCamera.h>
#include <xsg/nodes/SoPerspectiveCamera.h>
#include <xsg/nodes/SoPointLight.h>
#include <xsg/nodes/SoPointSet.h>
#include <xsg/nodes/SoPoints.h>
#include <xsg/nodes/SoScreenText.h>
#include <xsg/nodes/SoSeparator.h>
#include <xsg/nodes/SoShape.h>
#include <xsg/nodes/SoSolid.h>
#include <xsg/nodes/SoSphere.h>
#include <xsg/nodes/SoSpin.h>
#include <xsg/nodes/SoSpotLight.h>
#include <xsg/nodes/SoSwitch.h>
#include <xsg/nodes/SoTexture2.h>
#include <xsg/nodes/SoTextureCoordinates.h>
#include <xsg/nodes/SoTextureTransform.h>
#include <xsg/nodes/SoTransform.h>
#include <xsg/nodes/SoTransformation.h>
#include <xsg/nodes/SoTriangleSet.h>
#include <xsg/nodes/SoTriangleStripSet.h>
#include <xsg/nodes/SoUnknownNode.h>
#include <xsg/nodes/SoVertexShape.h>

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
    registerAll<SoAmbientLight, SoCamera, SoClipPlane, SoComplexity, SoCone, SoCube, SoCylinder,
                SoDirectionalLight, SoDrawStyle, SoDrawingCallback, SoFieldGallery, SoFog, SoGroup,
                SoIndexedLineSet, SoIndexedPointSet, SoIndexedTriangleSet, SoIndexedTriangleStripSet, SoInfo,
                SoInstances, SoLevelOfDetail, SoLight, SoLineSet, SoMaterial, SoMatrixTransform, SoNormals,
                SoOrthographicCamera, SoPerspectiveCamera, SoPointLight, SoPointSet, SoPoints, SoScreenText,
                SoSeparator, SoShape, SoSolid, SoSphere, SoSpin, SoSpotLight, SoSwitch, SoTexture2,
                SoTextureCoordinates, SoTextureTransform, SoTransform, SoTransformation, SoTriangleSet,
                SoTriangleStripSet, SoUnknownNode, SoVertexShape>();
}
