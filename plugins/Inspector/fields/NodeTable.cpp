// SPDX-License-Identifier: MIT
#include "fields/NodeDescription.h"

#include <xsg/core/SoFieldContainer.h>

#include <QCoreApplication>

#include <algorithm>

namespace inspector
{

const std::vector<NodeDescription>& allNodeDescriptions()
{
    // clang-format off
    static const std::vector<NodeDescription> table = {
        {"Groups", "Group",
         QT_TRANSLATE_NOOP("Node", "Holds other nodes in order. State that a child sets is seen by the children after it, and by what follows the group.")},
        {"Groups", "Separator",
         QT_TRANSLATE_NOOP("Node", "A group that isolates state: what its children set does not reach what follows the group.")},
        {"Groups", "Switch",
         QT_TRANSLATE_NOOP("Node", "Shows one of its children, all, or none.")},
        {"Groups", "LevelOfDetail",
         QT_TRANSLATE_NOOP("Node", "Shows one of its children by the distance of the eye: the first when nearer than the first distance, the second when nearer than the second, and so on; the last child beyond all distances.")},
        {"Groups", "Instances",
         QT_TRANSLATE_NOOP("Node", "Shows its children once for each matrix; the graphics hardware copies them. Lights and clip planes inside stand where the first copy does.")},
        {"Groups", "UnknownNode",
         QT_TRANSLATE_NOOP("Node", "Stands for a node of a type that this program does not know, as a file had it, so that writing the file again loses nothing. Its fields are those that the file has, each with its value as text; its children are shown as a separator's.")},
        {"Cameras", "PerspectiveCamera",
         QT_TRANSLATE_NOOP("Node", "Sees as an eye does: what is far is small.")},
        {"Cameras", "OrthographicCamera",
         QT_TRANSLATE_NOOP("Node", "Sees everything in its size, however far it is.")},
        {"Lights", "DirectionalLight",
         QT_TRANSLATE_NOOP("Node", "Light that comes from far away, everywhere from the same direction.")},
        {"Lights", "PointLight",
         QT_TRANSLATE_NOOP("Node", "Light from a point in all directions.")},
        {"Lights", "SpotLight",
         QT_TRANSLATE_NOOP("Node", "Light from a point within a cone.")},
        {"Lights", "AmbientLight",
         QT_TRANSLATE_NOOP("Node", "Light that comes evenly from everywhere; takes the place of an earlier one.")},
        {"Lights", "EnvironmentLight",
         QT_TRANSLATE_NOOP("Node", "The light of the surroundings, which physically based surfaces mirror and scatter: a ground, a horizon and a sky above it, the y axis pointing up. Takes the place of an earlier one and, for these surfaces, of the headlight. Colours are linear.")},
        {"Places", "Transform",
         QT_TRANSLATE_NOOP("Node", "Scales, then turns, then moves what follows it. An ignored field takes no part.")},
        {"Places", "MatrixTransform",
         QT_TRANSLATE_NOOP("Node", "Moves what follows it by a matrix.")},
        {"Places", "Spin",
         QT_TRANSLATE_NOOP("Node", "Turns what follows it, faster or slower, as time passes: each view that shows the scene drives the time source (`SoTimeSource`).")},
        {"Animation", "Animation",
         QT_TRANSLATE_NOOP("Node", "A clip: its tracks give fields of other nodes the values of one time. While it is stopped these have their own. What it writes is no edit, and is not saved.")},
        {"Animation", "Track",
         QT_TRANSLATE_NOOP("Node", "Keys of one field of one node, for the animation that it is a child of. Fields of numbers, rotations, colours and lists of numbers can be animated.")},
        {"Animation", "Skin",
         QT_TRANSLATE_NOOP("Node", "Bends the points before it, and their normals, by the bones of a skeleton, for the vertex shapes after it. Bones are transforms that stand anywhere in the scene. Lists that do not fit together change nothing.")},
        {"Animation", "Morph",
         QT_TRANSLATE_NOOP("Node", "Moves the points before it, and their normals, towards other shapes, for the vertex shapes after it: adds what each target differs by, as much of it as its weight says. Lists that do not fit together change nothing.")},
        {"Looks", "Material",
         QT_TRANSLATE_NOOP("Node", "How the surface of what follows looks. An ignored field leaves what an earlier material said.")},
        {"Looks", "PhysicalMaterial",
         QT_TRANSLATE_NOOP("Node", "A physically based surface for what follows, as glTF 2.0 defines it; takes the place of an earlier material of either kind. Colours are linear: half as bright is 0.5, shown as 0.735. A light of intensity 3.14 makes a white surface white. An ignored field has its default.")},
        {"Looks", "MaterialTexture",
         QT_TRANSLATE_NOOP("Node", "The picture of one property of the physically based surfaces that follow, which multiply it with their own values. Pictures of colours are decoded from sRGB, others are taken as they are. Texture2 is their base colour, too.")},
        {"Looks", "Texture2",
         QT_TRANSLATE_NOOP("Node", "The picture on the surface of what follows. A file, where one is named and can be read, wins over the image.")},
        {"Looks", "TextureTransform",
         QT_TRANSLATE_NOOP("Node", "Moves the texture on what follows: scales, then turns, then moves its coordinates.")},
        {"Looks", "DrawStyle",
         QT_TRANSLATE_NOOP("Node", "Whether what follows is drawn filled, as its edges, as its points, or not at all.")},
        {"Looks", "Complexity",
         QT_TRANSLATE_NOOP("Node", "How finely what follows is drawn.")},
        {"Looks", "Fog",
         QT_TRANSLATE_NOOP("Node", "Lets what follows fade into a colour with its distance from the eye.")},
        {"Looks", "ClipPlane",
         QT_TRANSLATE_NOOP("Node", "Cuts what follows it: what lies on the side the plane's normal points to stays.")},
        {"Corners", "Points",
         QT_TRANSLATE_NOOP("Node", "The corners of the vertex shapes that follow.")},
        {"Corners", "Normals",
         QT_TRANSLATE_NOOP("Node", "The directions of light reflection at the corners of the vertex shapes that follow, one per point. Where they are missing or of another number than the points, a shape makes its own.")},
        {"Corners", "TextureCoordinates",
         QT_TRANSLATE_NOOP("Node", "The places in the texture at the corners of the vertex shapes that follow, one per point: (0, 0) is the texture's lower left corner, (1, 1) the upper right.")},
        {"Corners", "SecondTextureCoordinates",
         QT_TRANSLATE_NOOP("Node", "Further places in textures at the corners of the vertex shapes that follow, one per point, for the MaterialTexture nodes that ask for them.")},
        {"Solids", "Cube",
         QT_TRANSLATE_NOOP("Node", "A box around the origin.")},
        {"Solids", "Sphere",
         QT_TRANSLATE_NOOP("Node", "A ball around the origin.")},
        {"Solids", "Cone",
         QT_TRANSLATE_NOOP("Node", "A cone around the y axis, its tip up.")},
        {"Solids", "Cylinder",
         QT_TRANSLATE_NOOP("Node", "A cylinder around the y axis.")},
        {"Shapes of points", "TriangleSet",
         QT_TRANSLATE_NOOP("Node", "Triangles, each of the next three points.")},
        {"Shapes of points", "TriangleStripSet",
         QT_TRANSLATE_NOOP("Node", "Strips of triangles: each point after the second makes a triangle with the two before it. Each strip takes as many of the next points as its count says; without counts one strip takes all.")},
        {"Shapes of points", "IndexedTriangleSet",
         QT_TRANSLATE_NOOP("Node", "Triangles, each of three points named by their place in the list of points.")},
        {"Shapes of points", "IndexedTriangleStripSet",
         QT_TRANSLATE_NOOP("Node", "Strips of triangles, the points named by their places in the list.")},
        {"Shapes of points", "LineSet",
         QT_TRANSLATE_NOOP("Node", "Lines from point to point. Each joins as many of the next points as its count says; without counts one line joins all.")},
        {"Shapes of points", "IndexedLineSet",
         QT_TRANSLATE_NOOP("Node", "Lines from point to point, the points named by their places in the list.")},
        {"Shapes of points", "PointSet",
         QT_TRANSLATE_NOOP("Node", "Each of the points, drawn as a dot.")},
        {"Shapes of points", "IndexedPointSet",
         QT_TRANSLATE_NOOP("Node", "Some of the points, drawn as dots.")},
        {"Other", "ScreenText",
         QT_TRANSLATE_NOOP("Node", "Text that keeps its size on the screen and stands where the origin is. Lines run downwards. Latin letters, digits and signs; what the font does not have is shown as a box.")},
        {"Other", "DrawingCallback",
         QT_TRANSLATE_NOOP("Node", "A place in the scene where an application draws by itself, with OpenGL 3.3. Draws nothing until a callback is set.")},
        {"Other", "Info",
         QT_TRANSLATE_NOOP("Node", "A comment: a text for people, without effect on the picture.")},
    };
    // clang-format on
    return table;
}

QString meaningOf(const NodeDescription& description)
{
    return QCoreApplication::translate("Node", description.meaning.data());
}

const NodeDescription* findNodeDescription(const SoFieldContainer& node)
{
    const std::string_view type = node.getTypeId().getName().getString();
    const auto& all = allNodeDescriptions();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const NodeDescription& each) { return each.node == type; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace inspector
