// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoNode.h>

namespace
{

struct Row {
    const char* node;
    const char* field;
    const char* type;
    const char* text;
};

// Every field of every node, with its default: what a scene file and an application rely on.
const Row Rows[] = {
    {"AmbientLight", "intensity", "SFFloat", "0.2"},
    {"AmbientLight", "color", "SFColor", "1 1 1"},
    {"ClipPlane", "plane", "SFPlane", "0 0 1 0"},
    {"ClipPlane", "on", "SFBool", "TRUE"},
    {"Complexity", "value", "SFFloat", "0.5"},
    {"Complexity", "textureQuality", "SFFloat", "0.5"},
    {"Cone", "parts", "SFBitMask", "SIDES | BOTTOM"},
    {"Cone", "bottomRadius", "SFFloat", "1"},
    {"Cone", "height", "SFFloat", "2"},
    {"Cube", "width", "SFFloat", "2"},
    {"Cube", "height", "SFFloat", "2"},
    {"Cube", "depth", "SFFloat", "2"},
    {"Cylinder", "parts", "SFBitMask", "SIDES | TOP | BOTTOM"},
    {"Cylinder", "radius", "SFFloat", "1"},
    {"Cylinder", "height", "SFFloat", "2"},
    {"DirectionalLight", "on", "SFBool", "TRUE"},
    {"DirectionalLight", "intensity", "SFFloat", "1"},
    {"DirectionalLight", "color", "SFColor", "1 1 1"},
    {"DirectionalLight", "direction", "SFVec3f", "0 0 -1"},
    {"DrawStyle", "style", "SFEnum", "FILLED"},
    {"DrawStyle", "lineWidth", "SFFloat", "1"},
    {"DrawStyle", "pointSize", "SFFloat", "1"},
    {"DrawingCallback", "box", "SFBox3f",
     "3.4028235e+38 3.4028235e+38 3.4028235e+38 -3.4028235e+38 -3.4028235e+38 -3.4028235e+38"},
    {"EnvironmentLight", "on", "SFBool", "TRUE"},
    {"EnvironmentLight", "intensity", "SFFloat", "1"},
    {"EnvironmentLight", "skyColor", "SFColor", "1 1 1"},
    {"EnvironmentLight", "horizonColor", "SFColor", "0.8 0.8 0.8"},
    {"EnvironmentLight", "groundColor", "SFColor", "0.3 0.3 0.3"},
    {"Fog", "kind", "SFEnum", "EVEN"},
    {"Fog", "color", "SFColor", "1 1 1"},
    {"Fog", "visibility", "SFFloat", "100"},
    {"IndexedLineSet", "colorBinding", "SFEnum", "OVERALL"},
    {"IndexedLineSet", "index", "MFInt32", "[ ]"},
    {"IndexedPointSet", "colorBinding", "SFEnum", "OVERALL"},
    {"IndexedPointSet", "index", "MFInt32", "[ ]"},
    {"IndexedTriangleSet", "colorBinding", "SFEnum", "OVERALL"},
    {"IndexedTriangleSet", "index", "MFInt32", "[ ]"},
    {"IndexedTriangleStripSet", "colorBinding", "SFEnum", "OVERALL"},
    {"IndexedTriangleStripSet", "index", "MFInt32", "[ ]"},
    {"Info", "text", "SFString", "\"\""},
    {"Instances", "matrices", "MFMatrix", "[ ]"},
    {"LevelOfDetail", "center", "SFVec3f", "0 0 0"},
    {"LevelOfDetail", "distances", "MFFloat", "[ ]"},
    {"LineSet", "colorBinding", "SFEnum", "OVERALL"},
    {"LineSet", "counts", "MFInt32", "[ ]"},
    {"Material", "ambientColor", "SFColor", "0.2 0.2 0.2"},
    {"Material", "diffuseColor", "MFColor", "[ 0.8 0.8 0.8 ]"},
    {"Material", "specularColor", "SFColor", "0 0 0"},
    {"Material", "emissiveColor", "SFColor", "0 0 0"},
    {"Material", "shininess", "SFFloat", "0.2"},
    {"Material", "transparency", "SFFloat", "0"},
    {"MaterialTexture", "fileName", "SFFilePathString", "\"\""},
    {"MaterialTexture", "image", "SFImage", "0 0 0"},
    {"MaterialTexture", "wrapS", "SFEnum", "REPEAT"},
    {"MaterialTexture", "wrapT", "SFEnum", "REPEAT"},
    {"MaterialTexture", "model", "SFEnum", "MODULATE"},
    {"MaterialTexture", "use", "SFEnum", "BASE_COLOR"},
    {"MaterialTexture", "coordinates", "SFEnum", "FIRST"},
    {"MaterialTexture", "translation", "SFVec2f", "0 0"},
    {"MaterialTexture", "rotation", "SFFloat", "0"},
    {"MaterialTexture", "scaleFactor", "SFVec2f", "1 1"},
    {"MatrixTransform", "matrix", "SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"},
    {"Normals", "vectors", "MFVec3f", "[ ]"},
    {"OrthographicCamera", "position", "SFVec3f", "0 0 1"},
    {"OrthographicCamera", "orientation", "SFRotation", "0 0 0 1"},
    {"OrthographicCamera", "nearDistance", "SFFloat", "0.1"},
    {"OrthographicCamera", "farDistance", "SFFloat", "1000"},
    {"OrthographicCamera", "focalDistance", "SFFloat", "5"},
    {"OrthographicCamera", "height", "SFFloat", "2"},
    {"PerspectiveCamera", "position", "SFVec3f", "0 0 1"},
    {"PerspectiveCamera", "orientation", "SFRotation", "0 0 0 1"},
    {"PerspectiveCamera", "nearDistance", "SFFloat", "0.1"},
    {"PerspectiveCamera", "farDistance", "SFFloat", "1000"},
    {"PerspectiveCamera", "focalDistance", "SFFloat", "5"},
    {"PerspectiveCamera", "heightAngle", "SFFloat", "0.785398"},
    {"PhysicalMaterial", "baseColor", "MFColor", "[ 1 1 1 ]"},
    {"PhysicalMaterial", "metallic", "SFFloat", "0"},
    {"PhysicalMaterial", "roughness", "SFFloat", "0.5"},
    {"PhysicalMaterial", "emissiveColor", "SFColor", "0 0 0"},
    {"PhysicalMaterial", "emissiveStrength", "SFFloat", "1"},
    {"PhysicalMaterial", "normalScale", "SFFloat", "1"},
    {"PhysicalMaterial", "occlusionStrength", "SFFloat", "1"},
    {"PhysicalMaterial", "clearCoat", "SFFloat", "0"},
    {"PhysicalMaterial", "clearCoatRoughness", "SFFloat", "0"},
    {"PhysicalMaterial", "clearCoatNormalScale", "SFFloat", "1"},
    {"PhysicalMaterial", "alphaMode", "SFEnum", "OPAQUE"},
    {"PhysicalMaterial", "opacity", "SFFloat", "1"},
    {"PhysicalMaterial", "alphaCutoff", "SFFloat", "0.5"},
    {"PointLight", "on", "SFBool", "TRUE"},
    {"PointLight", "intensity", "SFFloat", "1"},
    {"PointLight", "color", "SFColor", "1 1 1"},
    {"PointLight", "location", "SFVec3f", "0 0 1"},
    {"PointLight", "attenuation", "SFVec3f", "1 0 0"},
    {"PointSet", "colorBinding", "SFEnum", "OVERALL"},
    {"Points", "points", "MFVec3f", "[ ]"},
    {"ScreenText", "lines", "MFString", "[ ]"},
    {"ScreenText", "size", "SFFloat", "14"},
    {"ScreenText", "justification", "SFEnum", "LEFT"},
    {"SecondTextureCoordinates", "points", "MFVec2f", "[ ]"},
    {"Sphere", "radius", "SFFloat", "1"},
    {"Spin", "on", "SFBool", "TRUE"},
    {"Spin", "axis", "SFVec3f", "0 1 0"},
    {"Spin", "turnsPerSecond", "SFFloat", "0.25"},
    {"Spin", "time", "SFTime", "0"},
    {"SpotLight", "on", "SFBool", "TRUE"},
    {"SpotLight", "intensity", "SFFloat", "1"},
    {"SpotLight", "color", "SFColor", "1 1 1"},
    {"SpotLight", "location", "SFVec3f", "0 0 1"},
    {"SpotLight", "direction", "SFVec3f", "0 0 -1"},
    {"SpotLight", "cutOffAngle", "SFFloat", "0.785398"},
    {"SpotLight", "dropOff", "SFFloat", "0"},
    {"SpotLight", "attenuation", "SFVec3f", "1 0 0"},
    {"Switch", "whichChild", "SFInt32", "-1"},
    {"Texture2", "fileName", "SFFilePathString", "\"\""},
    {"Texture2", "image", "SFImage", "0 0 0"},
    {"Texture2", "wrapS", "SFEnum", "REPEAT"},
    {"Texture2", "wrapT", "SFEnum", "REPEAT"},
    {"Texture2", "model", "SFEnum", "MODULATE"},
    {"TextureCoordinates", "points", "MFVec2f", "[ ]"},
    {"TextureTransform", "translation", "SFVec2f", "0 0"},
    {"TextureTransform", "rotation", "SFFloat", "0"},
    {"TextureTransform", "scaleFactor", "SFVec2f", "1 1"},
    {"TextureTransform", "center", "SFVec2f", "0 0"},
    {"Transform", "translation", "SFVec3f", "0 0 0"},
    {"Transform", "rotation", "SFRotation", "0 0 0 1"},
    {"Transform", "scaleFactor", "SFVec3f", "1 1 1"},
    {"Transform", "scaleOrientation", "SFRotation", "0 0 0 1"},
    {"Transform", "center", "SFVec3f", "0 0 0"},
    {"TriangleSet", "colorBinding", "SFEnum", "OVERALL"},
    {"TriangleStripSet", "colorBinding", "SFEnum", "OVERALL"},
    {"TriangleStripSet", "counts", "MFInt32", "[ ]"},
    {"Animation", "state", "SFEnum", "STOPPED"},
    {"Animation", "time", "SFTime", "0"},
    {"Animation", "speed", "SFFloat", "1"},
    {"Animation", "loop", "SFBool", "TRUE"},
    {"Animation", "duration", "SFTime", "0"},
    {"Morph", "weights", "MFFloat", "[ ]"},
    {"Morph", "pointOffsets", "MFVec3f", "[ ]"},
    {"Morph", "normalOffsets", "MFVec3f", "[ ]"},
    {"Skin", "bones", "MFNode", "[ ]"},
    {"Skin", "parents", "MFInt32", "[ ]"},
    {"Skin", "binds", "MFMatrix", "[ ]"},
    {"Skin", "place", "SFInt32", "-1"},
    {"Skin", "bonesPerPoint", "SFInt32", "4"},
    {"Skin", "boneIndices", "MFInt32", "[ ]"},
    {"Skin", "weights", "MFFloat", "[ ]"},
    {"Track", "target", "SFNode", "NULL"},
    {"Track", "field", "SFName", "\"\""},
    {"Track", "interpolation", "SFEnum", "LINEAR"},
    {"Track", "times", "MFFloat", "[ ]"},
    {"Track", "values", "MFFloat", "[ ]"},
};

SoRef<SoNode> create(const char* type)
{
    return SoRef<SoNode>(dynamic_cast<SoNode*>(SoType::fromName(type).createInstance()));
}

} // namespace

class NodeField : public testing::TestWithParam<Row>
{
};

TEST_P(NodeField, HasItsTypeAndDefault)
{
    const auto node = create(GetParam().node);
    ASSERT_TRUE(node);
    const SoField* field = node->getField(GetParam().field);
    ASSERT_TRUE(field);
    EXPECT_STREQ(field->getTypeId().getName().getString(), GetParam().type);
    SbString text;
    field->get(text);
    EXPECT_STREQ(text.getString(), GetParam().text);
    EXPECT_TRUE(field->isDefault());
    EXPECT_EQ(field->getContainer(), node.get());
}

INSTANTIATE_TEST_SUITE_P(All, NodeField, testing::ValuesIn(Rows), [](const auto& test) {
    return std::string(test.param.node) + "_" + test.param.field;
});

TEST(NodeFields, EveryNodeIsInTheTable)
{
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        const auto node = create(type.getName().getString());
        // The gallery has a field of every type; those are tested as such.
        if (!node || type.getName() == SbName("FieldGallery"))
            continue;
        int rows = 0;
        for (const Row& row : Rows)
            rows += type.getName() == SbName(row.node) ? 1 : 0;
        EXPECT_EQ(rows, node->getFieldData()->getNumFields()) << type.getName().getString();
    }
}
