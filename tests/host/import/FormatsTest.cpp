// SPDX-License-Identifier: MIT
// Every format, written by the exporter from a shipped model, reads as the same model.
#include "ModelFiles.h"

#include "import/SceneBuilder.h"
#include "model/ModelFormats.h"
#include "reader/ModelReader.h"
#include "reader/ScopedCLocale.h"

#include <xsg/actions/SoBoundingBoxAction.h>

#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

using namespace scopix;

namespace
{

struct Format {
    const char* exporter;
    const char* file;
    bool keepsNodes; // with names
};

std::ostream& operator<<(std::ostream& out, const Format& format)
{
    return out << format.file;
}

// The exporter cannot copy what the importer keeps beside the nodes.
void dropNotes(aiNode& node)
{
    delete node.mMetaData;
    node.mMetaData = nullptr;
    for (unsigned i = 0; i < node.mNumChildren; ++i)
        dropNotes(*node.mChildren[i]);
}

class Formats : public testing::TestWithParam<Format>
{
protected:
    QString exported(const char* model) const
    {
        Assimp::Importer importer;
        const aiScene* scene = importer.ReadFile(shippedModel(model).toStdString(), aiProcess_Triangulate);
        dropNotes(*scene->mRootNode);
        const ScopedCLocale numbers;
        Assimp::Exporter exporter;
        const QString path = files.path(GetParam().file);
        exporter.Export(scene, GetParam().exporter, path.toStdString());
        return path;
    }
    ModelFiles files;
};

TEST_P(Formats, ReadTheSameModel)
{
    const ModelReadResult model = readModel(exported("lighthouse.glb"));
    ASSERT_TRUE(model.error.isEmpty()) << qPrintable(model.error);
    const auto scene = buildScene(model.data, "lighthouse");
    const auto original = buildScene(readModel(shippedModel("lighthouse.glb")).data, "lighthouse");
    SbVec3f size = SoBoundingBoxAction().getBox(scene.get()).getSize();
    const SbVec3f expected = SoBoundingBoxAction().getBox(original.get()).getSize();
    if (QLatin1String(GetParam().exporter) == QLatin1String("fbxa"))
        size = size * (expected[0] / size[0]); // written in hundredths
    for (int i = 0; i < 3; ++i)
        EXPECT_NEAR(size[i], expected[i], 0.05F * expected[i]);
}

TEST_P(Formats, KeepNamesOfNodes)
{
    if (!GetParam().keepsNodes)
        return;
    const ModelReadResult model = readModel(exported("lighthouse.glb"));
    const auto is = [](const ModelData::Node& node) { return node.name == "Lantern"; };
    EXPECT_TRUE(std::any_of(model.data.nodes.begin(), model.data.nodes.end(), is));
}

INSTANTIATE_TEST_SUITE_P(All, Formats,
                         testing::Values(Format{"gltf2", "model.gltf", true},
                                         Format{"glb2", "model.glb", true}, Format{"obj", "model.obj", false},
                                         Format{"stlb", "model.stl", false},
                                         Format{"ply", "model.ply", false},
                                         Format{"collada", "model.dae", true},
                                         Format{"fbxa", "model.fbx", true}));

TEST(ModelFormats, AreKnownToTheImporter)
{
    const Assimp::Importer importer;
    for (const QString& ending : modelEndings())
        EXPECT_TRUE(importer.IsExtensionSupported('.' + ending.toStdString())) << qPrintable(ending);
}

class ShippedModels : public testing::TestWithParam<const char*>
{
};

TEST_P(ShippedModels, Open)
{
    const ModelReadResult model = readModel(shippedModel(GetParam()));
    ASSERT_TRUE(model.error.isEmpty()) << qPrintable(model.error);
    const auto scene = buildScene(model.data, "model");
    EXPECT_FALSE(SoBoundingBoxAction().getBox(scene.get()).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, ShippedModels,
                         testing::Values("lighthouse.glb", "crate.gltf", "crate.obj", "knot.stl",
                                         "rainbow.ply"));

} // namespace
