#include <xsg/nodes/NodeTypes.h>

#include <xsg/nodes/SoCamera.h>
#include <xsg/nodes/SoComplexity.h>
#include <xsg/nodes/SoCone.h>
#include <xsg/nodes/SoCube.h>
#include <xsg/nodes/SoCylinder.h>
#include <xsg/nodes/SoDirectionalLight.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoDrawingCallback.h>
#include <xsg/nodes/SoFog.h>
#include <xsg/nodes/SoGroup.h>
#include <xsg/nodes/SoIndexedTriangleSet.h>
#include <xsg/nodes/SoLight.h>
#include <xsg/nodes/SoMaterial.h>
#include <xsg/nodes/SoMatrixTransform.h>
#include <xsg/nodes/SoNormals.h>
#include <xsg/nodes/SoPerspectiveCamera.h>
#include <xsg/nodes/SoPoints.h>
#include <xsg/nodes/SoSeparator.h>
#include <xsg/nodes/SoShape.h>
#include <xsg/nodes/SoSolid.h>
#include <xsg/nodes/SoSphere.h>
#include <xsg/nodes/SoTexture2.h>
#include <xsg/nodes/SoTextureCoordinates.h>
#include <xsg/nodes/SoTransform.h>
#include <xsg/nodes/SoTransformation.h>
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
    registerAll<SoCamera, SoComplexity, SoCone, SoCube, SoCylinder, SoDirectionalLight, SoDrawStyle,
                SoDrawingCallback, SoFog, SoGroup, SoIndexedTriangleSet, SoLight, SoMaterial,
                SoMatrixTransform, SoNormals, SoPerspectiveCamera, SoPoints, SoSeparator, SoShape, SoSolid,
                SoSphere, SoTexture2, SoTextureCoordinates, SoTransform, SoTransformation, SoVertexShape>();
}
