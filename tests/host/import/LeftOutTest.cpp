// SPDX-License-Identifier: MIT
// What of a model does not come along is told, counted.
#include "ModelFiles.h"

#include "import/ModelImport.h"
#include "reader/LeftOut.h"
#include "reader/ModelReader.h"

#include <support/Waiting.h>

#include <assimp/scene.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace scopix;

namespace
{

class LeftOut : public testing::Test
{
protected:
    // A triangle as glTF, in which each list is what the tests change.
    static QJsonObject triangle()
    {
        static const char text[] = R"({"asset": {"version": "2.0"}, "scene": 0, "scenes": [{"nodes": [0, 1]}],
            "nodes": [{"mesh": 0}, {"mesh": 1}],
            "buffers": [{"byteLength": 36, "uri": "triangle.bin"}],
            "bufferViews": [{"buffer": 0, "byteLength": 36}],
            "accessors": [{"bufferView": 0, "componentType": 5126, "count": 3, "type": "VEC3"},
                          {"bufferView": 0, "componentType": 5121, "count": 3, "type": "VEC4"},
                          {"bufferView": 0, "componentType": 5126, "count": 2, "type": "SCALAR"},
                          {"bufferView": 0, "componentType": 5126, "count": 2, "type": "VEC3"}],
            "images": [{"uri": "a.png"}, {"uri": "b.png"}], "textures": [{"source": 0}, {"source": 1}],
            "materials": [{"name": "one"}, {"name": "two"}],
            "meshes": [{"primitives": [{"attributes": {"POSITION": 0}, "material": 0}]},
                       {"primitives": [{"attributes": {"POSITION": 0}, "material": 1}]}]})";
        return QJsonDocument::fromJson(text).object();
    }
    static QJsonValue json(const char* text) { return QJsonDocument::fromJson(text).array().first(); }
    std::string notesOf(const QJsonObject& gltf)
    {
        const float corners[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
        files.write("triangle.bin", QByteArray(reinterpret_cast<const char*>(corners), sizeof corners));
        return notesOf(files.write("model.gltf", QJsonDocument(gltf).toJson()));
    }
    static std::string notesOf(const QString& path)
    {
        const ModelReadResult model = readModel(path);
        EXPECT_EQ(model.error, "");
        std::string lines;
        for (const std::string& note : model.notes)
            lines += (lines.empty() ? "" : "\n") + note;
        return lines;
    }
    ModelFiles files;
};

TEST_F(LeftOut, IsNothingOfWhatIsShipped)
{
    for (const char* name : {"lighthouse.glb", "crate.gltf", "crate.obj", "rainbow.ply", "knot.stl"})
        EXPECT_EQ(notesOf(shippedModel(name)), "") << name;
    EXPECT_EQ(notesOf(triangle()), "");
}

TEST_F(LeftOut, IsNoneOfAnAnimationWithItsTargets)
{
    QJsonObject gltf = triangle();
    gltf["animations"] = json(R"([[{"samplers": [{"input": 2, "output": 3}],
                  "channels": [{"sampler": 0, "target": {"node": 0, "path": "translation"}}]}]])");
    EXPECT_EQ(notesOf(gltf), "");
}

TEST_F(LeftOut, CountsTracksThatMoveNothing)
{
    aiScene scene;
    scene.mRootNode = new aiNode("here");
    auto* animation = new aiAnimation;
    scene.mNumAnimations = 1;
    scene.mAnimations = new aiAnimation* [1] { animation };
    const auto setChannels = [&](const std::vector<const char*>& names) {
        animation->mChannels = new aiNodeAnim*[names.size()];
        animation->mNumChannels = unsigned(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            animation->mChannels[i] = new aiNodeAnim;
            animation->mChannels[i]->mNodeName = names[i];
        }
    };
    setChannels({"here", "elsewhere", "nowhere"});
    EXPECT_EQ(partsLeftOut(scene).join('\n'),
              "2 tracks of animations move what there are no nodes for, and are left out.");
}

TEST_F(LeftOut, CountsLightsThatAnAnimationMoves)
{
    aiScene scene;
    scene.mRootNode = new aiNode("still");
    auto* arm = new aiNode("arm");
    auto* lamp = new aiNode("lamp");
    arm->addChildren(1, &lamp);
    scene.mRootNode->addChildren(1, &arm);
    scene.mNumLights = 2;
    scene.mLights = new aiLight* [2] { new aiLight, new aiLight };
    scene.mLights[0]->mType = scene.mLights[1]->mType = aiLightSource_POINT;
    scene.mLights[0]->mName = "lamp";
    scene.mLights[1]->mName = "still";
    EXPECT_EQ(partsLeftOut(scene).join('\n'), "");
    auto* animation = new aiAnimation;
    scene.mNumAnimations = 1;
    scene.mAnimations = new aiAnimation* [1] { animation };
    animation->mNumChannels = 1;
    animation->mChannels = new aiNodeAnim* [1] { new aiNodeAnim };
    animation->mChannels[0]->mNodeName = "arm";
    EXPECT_EQ(partsLeftOut(scene).join('\n'), "The movement of 1 light is left out.");
}

TEST_F(LeftOut, CountsTheMapsOfMaterials)
{
    QJsonObject gltf = triangle();
    gltf["materials"] =
        QJsonArray{json(R"([{"normalTexture": {"index": 0}, "emissiveTexture": {"index": 1}}])"),
                   json(R"([{"normalTexture": {"index": 1}}])")};
    QImage(2, 2, QImage::Format_RGB32).save(files.path("a.png"));
    QImage(2, 2, QImage::Format_RGB32).save(files.path("b.png"));
    EXPECT_EQ(notesOf(gltf), ""); // a physical material has them
    gltf["materials"] = QJsonArray{
        json(
            R"([{"occlusionTexture": {"index": 0}, "pbrMetallicRoughness": {"metallicRoughnessTexture": {"index": 1}}}])"),
        json(R"([{}])")};
    EXPECT_EQ(notesOf(gltf), "");
    gltf["extensionsUsed"] =
        QJsonArray{"KHR_materials_sheen", "KHR_materials_transmission", "KHR_texture_transform"};
    gltf["materials"] =
        QJsonArray{json(
                       R"([{"extensions": {"KHR_materials_sheen": {"sheenColorFactor": [1, 0, 0]},
                            "KHR_materials_transmission": {"transmissionFactor": 0.5}}}])"),
                   json(R"([{}])")};
    EXPECT_EQ(notesOf(gltf), "The sheen of 1 material is left out.\n"
                             "The transmission of 1 material is shown as transparency.");
}

TEST_F(LeftOut, CountsWhatMaterialsCannotShow)
{
    QJsonObject gltf = triangle();
    gltf["materials"] =
        QJsonArray{json(R"([{"extensions": {"KHR_materials_unlit": {}, "KHR_materials_iridescence": {},
                  "KHR_materials_specular": {"specularFactor": 0.5}}}])"),
                   json(R"([{"extensions": {"KHR_materials_ior": {"ior": 1.3}, "KHR_materials_specular": {},
                  "KHR_materials_volume": {"thicknessFactor": 2}}}])")};
    gltf["extensionsUsed"] =
        QJsonArray{"KHR_materials_unlit", "KHR_materials_iridescence", "KHR_materials_specular",
                   "KHR_materials_ior", "KHR_materials_volume"};
    EXPECT_EQ(notesOf(gltf),
              "1 material is to be shown without light, and is lit.\n"
              "The refraction of 1 material is left out.\n"
              "The volume of 1 material is left out.\n"
              "What the file says once by the extension “KHR_materials_iridescence” is left out.\n"
              "What the file says 2 times by the extension “KHR_materials_specular” is left out.");
}

TEST_F(LeftOut, NamesPropertiesThatItDoesNotKnow)
{
    aiScene scene;
    scene.mRootNode = new aiNode("root");
    scene.mNumMeshes = 1;
    scene.mMeshes = new aiMesh* [1] { new aiMesh };
    scene.mMeshes[0]->mPrimitiveTypes = aiPrimitiveType_TRIANGLE;
    scene.mNumMaterials = 1;
    scene.mMaterials = new aiMaterial* [1] { new aiMaterial };
    aiMaterial& material = *scene.mMaterials[0];
    const float half = 0.5F;
    material.AddProperty(&half, 1, "$mat.opacity", 0, 0);
    material.AddProperty(&half, 1, "$mat.reflectivity", 0, 0);
    EXPECT_EQ(partsLeftOut(scene).join('\n'), "The reflectivity of 1 material is left out.");
    material.AddProperty(&half, 1, "$mat.glitter", 0, 0);
    EXPECT_EQ(partsLeftOut(scene).last(),
              QString::fromUtf8("1 property of materials is not known here and left out: “$mat.glitter”."));
    scene.mMeshes[0]->mPrimitiveTypes = aiPrimitiveType_POINT;
    EXPECT_TRUE(partsLeftOut(scene).isEmpty());
}

TEST_F(LeftOut, CountsCoordinatesAndColoursOfPoints)
{
    aiScene scene;
    scene.mRootNode = new aiNode("root");
    scene.mNumMeshes = 1;
    scene.mMeshes = new aiMesh* [1] { new aiMesh };
    scene.mNumMaterials = 1;
    scene.mMaterials = new aiMaterial* [1] { new aiMaterial };
    aiMesh& mesh = *scene.mMeshes[0];
    mesh.mNumVertices = 1;
    mesh.mTextureCoords[0] = new aiVector3D[1];
    mesh.mColors[0] = new aiColor4D[1]{{1, 1, 1, 1}};
    EXPECT_TRUE(partsLeftOut(scene).isEmpty());
    mesh.mTextureCoords[1] = new aiVector3D[1];
    mesh.mColors[0]->a = 0.5F;
    mesh.mColors[1] = new aiColor4D[1];
    EXPECT_EQ(partsLeftOut(scene).join('\n'),
              "1 list of texture coordinates is left out, which no picture uses.\n"
              "The further colours of the points of 1 mesh are left out.\n"
              "How transparent the points of 1 mesh are is left out.");
}

TEST_F(LeftOut, IsAMaterialThatWouldNeverBeSeen)
{
    const QByteArray mesh = "mtllib glass.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl glass\nf 1 2 3\n";
    const QString path = files.write("glass.obj", mesh);
    files.write("glass.mtl", "newmtl glass\nd 0.25\n");
    EXPECT_EQ(notesOf(path), "");
    EXPECT_EQ(readModel(path).data.materials.back().transparency, 0.75F);
    files.write("glass.mtl", "newmtl glass\nd 0\n");
    EXPECT_EQ(notesOf(path), "1 material, of which nothing would be seen, is shown opaque.");
    EXPECT_EQ(readModel(path).data.materials.back().transparency, 0);
}

// The transform may say anew which coordinates a picture has.
TEST_F(LeftOut, IsNoTransformOfAPicture)
{
    QImage(2, 2, QImage::Format_RGB32).save(files.path("a.png"));
    QJsonObject gltf = triangle();
    gltf["materials"] = QJsonArray{
        json(R"([{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}, "emissiveTexture": {"index": 0,
                 "extensions": {"KHR_texture_transform": {"texCoord": 1, "scale": [2, 2]}}}}])"),
        json(R"([{}])")};
    const float corners[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
    files.write("triangle.bin", QByteArray(reinterpret_cast<const char*>(corners), sizeof corners));
    const ModelReadResult model = readModel(files.write("model.gltf", QJsonDocument(gltf).toJson()));
    ASSERT_EQ(model.data.materials[0].pictures.size(), 2U);
    EXPECT_EQ(model.data.materials[0].pictures[1].coordinates, 1);
    EXPECT_EQ(model.data.materials[0].pictures[1].scaleFactor, SbVec2f(2, 2));
}

TEST_F(LeftOut, NamesMissingPictures)
{
    QJsonObject gltf = triangle();
    gltf["materials"] = QJsonArray{json(R"([{"pbrMetallicRoughness": {"baseColorTexture": {"index": 0}}}])"),
                                   json(R"([{"pbrMetallicRoughness": {"baseColorTexture": {"index": 1}}}])")};
    EXPECT_EQ(notesOf(gltf), "2 pictures are missing or cannot be read, and are left out: “a.png”, “b.png”.");
    QImage(2, 2, QImage::Format_RGB32).save(files.path("a.png"));
    files.write("b.png", "no picture");
    EXPECT_EQ(notesOf(gltf), "1 picture is missing or cannot be read, and is left out: “b.png”.");
}

TEST_F(LeftOut, NamesMissingFilesOfMaterials)
{
    const QByteArray mesh = "v 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl red\nf 1 2 3\n";
    const QString path = files.write("tent.obj", "mtllib gone.mtl\n" + mesh);
    const char* const gone = "1 file of materials is missing, so that default ones are used: “gone.mtl”.";
    EXPECT_EQ(notesOf(path), gone);
    files.write("tent.mtl", "newmtl red\nKd 1 0 0\n");
    EXPECT_EQ(notesOf(path), gone) << "the importer guesses another one";
    files.write("gone.mtl", "newmtl red\nKd 1 0 0\n");
    EXPECT_EQ(notesOf(path), "");
    EXPECT_EQ(notesOf(files.write("plain.obj", mesh)), "");
}

TEST_F(LeftOut, ComesWithTheScene)
{
    QWidget window;
    ModelImport import(&window);
    bool isFinished = false;
    QObject::connect(&import, &ModelImport::finished, [&] { isFinished = true; });
    import.start(files.write("tent.obj", "mtllib gone.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"));
    ASSERT_TRUE(waitFor([&] { return isFinished; }));
    ASSERT_EQ(import.notes().size(), 1);
    EXPECT_TRUE(import.notes().first().contains("gone.mtl"));
}

} // namespace
