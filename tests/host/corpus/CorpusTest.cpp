// SPDX-License-Identifier: MIT
// Every model of the importer's own test files opens with as many triangles as the importer finds in it, or
// is refused in one sentence; none crashes the host or keeps it waiting. One test for each of the files'
// folders.
#include "export/FlatScene.h"
#include "export/SceneExport.h"
#include "import/ModelImport.h"
#include "model/ModelFormats.h"
#include "reader/MemoryLimit.h"
#include "support/ChildProcess.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoSearchAction.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/animation/SoMorph.h>
#include <xsg/nodes/animation/SoSkin.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>

#include <assimp/Importer.hpp>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <locale.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace scopix;

namespace
{

const QString Corpus = QStringLiteral(SCOPIX_MODEL_CORPUS "/");

// Refused although the importer finds triangles in them, each for a reason.
const QSet<QString> RefusedWithReason{
    "ASE/ThreeCubesGreen_UTF16BE.ASE",                         // triangles without a surface
    "ASE/ThreeCubesGreen_UTF16LE.ASE",                         // the same
    "OFF/invalid.off",                                         // triangles without a surface
    "STL/triangle_with_empty_solid.stl",                       // a mesh without points
    "glTF2/BoxWithInfinites-glTF-Binary/BoxWithInfinites.glb", // points at infinity
};

long trianglesIn(const aiNode& node, const aiScene& scene)
{
    long count = 0;
    for (unsigned i = 0; i < node.mNumMeshes; ++i) {
        const aiMesh& mesh = *scene.mMeshes[node.mMeshes[i]];
        count += std::count_if(mesh.mFaces, mesh.mFaces + mesh.mNumFaces,
                               [](const aiFace& face) { return face.mNumIndices == 3; });
    }
    for (unsigned i = 0; i < node.mNumChildren; ++i)
        count += trianglesIn(*node.mChildren[i], scene);
    return count;
}

// As the importer itself counts them. It may write too.
constexpr char Counted[] = "triangles: ";
const ChildAct countTriangles("countTriangles", [](const ChildAct::Words& words) {
    limitMemoryFor(QString::fromStdString(words[0]));
    uselocale(newlocale(LC_ALL_MASK, "C", nullptr));
    Assimp::Importer importer;
    const aiScene* scene = importer.ReadFile(words[0], aiProcess_Triangulate);
    const long count = scene && scene->mRootNode ? trianglesIn(*scene->mRootNode, *scene) : 0;
    std::printf("%s%ld\n", Counted, count);
    return true;
});

// In a process of its own, which the importer may end; 0 where it opens nothing.
long trianglesByImporter(const QString& path)
{
    const std::string said = ChildProcess(countTriangles.command({path.toStdString()})).readAll();
    const auto found = said.rfind(Counted);
    return found == std::string::npos ? 0 : std::atol(said.c_str() + found + std::strlen(Counted));
}

long trianglesIn(SoNode* scene)
{
    SoSearchAction search;
    search.setType(SoIndexedTriangleSet::getClassTypeId());
    search.setLimit(-1);
    long count = 0;
    for (const SoPath& path : search.apply(scene))
        count += static_cast<SoIndexedTriangleSet*>(path.getTail())->index.getNum() / 3;
    return count;
}

struct Outcome {
    SoRef<SoSeparator> scene;
    QString error;
};

Outcome open(const QString& path)
{
    Outcome outcome;
    bool done = false;
    QWidget window;
    ModelImport import(&window);
    QObject::connect(&import, &ModelImport::finished, [&](const SoRef<SoSeparator>& scene) {
        outcome.scene = scene;
        done = true;
    });
    QObject::connect(&import, &ModelImport::failed, [&](const QString& sentence) {
        outcome.error = sentence;
        done = true;
    });
    import.start(path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 120000)) << qPrintable(path);
    return outcome;
}

SbBox3f boxOf(const FlatScene& scene)
{
    SbBox3f box;
    for (const FlatScene::Mesh& mesh : scene.meshes) {
        for (const SbVec3f& point : mesh.geometry.points)
            box.extendBy(point);
    }
    return box;
}

template <class Node>
std::vector<const Node*> all(SoNode& scene)
{
    SoSearchAction search;
    search.setType(Node::getClassTypeId());
    search.setLimit(-1);
    std::vector<const Node*> nodes;
    for (const SoPath& path : search.apply(&scene))
        nodes.push_back(static_cast<const Node*>(path.getTail()));
    return nodes;
}

template <class Node>
std::size_t count(SoNode& scene)
{
    return all<Node>(scene).size();
}

// Every point in its place, as far as numbers in a file keep that.
void comparePoints(SoNode& scene, SoNode& copy)
{
    const FlatScene before = flatten(scene);
    const FlatScene after = flatten(copy);
    ASSERT_EQ(before.meshes.size(), after.meshes.size());
    const float tolerance =
        1e-5F * std::max(boxOf(before).getSize().length(), boxOf(before).getMax().length());
    for (std::size_t i = 0; i < before.meshes.size(); ++i) {
        const SoGeometry& mine = before.meshes[i].geometry;
        const SoGeometry& theirs = after.meshes[i].geometry;
        ASSERT_EQ(mine.index.size(), theirs.index.size());
        for (std::size_t k = 0; k < mine.index.size(); ++k)
            ASSERT_LE((mine.points[mine.index[k]] - theirs.points[theirs.index[k]]).length(), tolerance);
    }
}

// Names have no blanks there, and nothing is without a name.
std::string textWithoutName(const SoNode& node)
{
    const SoRef<SoNode> copy(static_cast<SoNode*>(node.getTypeId().createInstance()));
    for (int i = 0; i < node.getFieldData()->getNumFields(); ++i)
        copy->getFieldData()->getField(copy.get(), i)->copyFrom(*node.getFieldData()->getField(&node, i));
    return SoSceneFile::writeText(copy.get());
}

void comparePictures(const SoTexture2* mine, const SoTexture2* theirs)
{
    ASSERT_EQ(mine != nullptr, theirs != nullptr);
    if (!mine)
        return;
    EXPECT_TRUE(mine->image.isSame(theirs->image));
    EXPECT_EQ(mine->wrapS.getValue(), theirs->wrapS.getValue());
    EXPECT_EQ(mine->wrapT.getValue(), theirs->wrapT.getValue());
}

// What is physically based looks the same; other materials become such ones.
void compareMaterials(const FlatScene& before, const FlatScene& after)
{
    ASSERT_EQ(before.materials.size(), after.materials.size());
    for (std::size_t i = 0; i < before.meshes.size(); ++i) {
        const ExportedMaterial& mine = before.materials[before.meshes[i].material];
        const ExportedMaterial& theirs = after.materials[after.meshes[i].material];
        comparePictures(mine.texture, theirs.texture);
        if (!mine.physical)
            continue;
        ASSERT_TRUE(theirs.physical);
        if (!mine.isColored) {
            EXPECT_EQ(textWithoutName(*mine.physical), textWithoutName(*theirs.physical));
        }
        ASSERT_EQ(mine.textures.size(), theirs.textures.size());
        for (std::size_t use = 0; use < mine.textures.size(); ++use)
            comparePictures(mine.textures[use], theirs.textures[use]);
    }
}

void compareSurroundings(SoNode& scene, SoNode& copy)
{
    const auto mine = all<SoEnvironmentLight>(scene);
    const auto theirs = all<SoEnvironmentLight>(copy);
    if (mine.empty())
        return; // the copy has physically based materials, and so has surroundings
    ASSERT_EQ(mine.size(), theirs.size());
    for (std::size_t i = 0; i < mine.size(); ++i)
        EXPECT_EQ(textWithoutName(*mine[i]), textWithoutName(*theirs[i]));
}

// Clips move the copy as they move the scene.
void compareMotion(SoNode& scene, SoNode& copy)
{
    const auto clips = SoAnimation::findBelow(scene);
    const auto copies = SoAnimation::findBelow(copy);
    ASSERT_EQ(clips.size(), copies.size());
    EXPECT_EQ(count<SoTrack>(scene), count<SoTrack>(copy));
    EXPECT_EQ(count<SoSkin>(scene), count<SoSkin>(copy));
    EXPECT_EQ(count<SoMorph>(scene), count<SoMorph>(copy));
    for (std::size_t i = 0; i < clips.size(); ++i) {
        SCOPED_TRACE("clip " + std::to_string(i));
        for (const double share : {0.0, 0.37, 1.0}) {
            clips[i]->goTo(share * clips[i]->getDuration());
            copies[i]->goTo(share * clips[i]->getDuration());
            comparePoints(scene, copy);
        }
        clips[i]->stop();
        copies[i]->stop();
    }
}

// The box around a scene is about that of its points, however deep these stand in it.
void checkBox(SoNode& scene)
{
    const SbBox3f points = boxOf(flatten(scene));
    const SbBox3f box = SoBoundingBoxAction().getBox(&scene);
    ASSERT_EQ(points.isEmpty(), box.isEmpty());
    const float tolerance =
        0.25F * std::max({points.getSize().length(), points.getMin().length(), points.getMax().length()});
    EXPECT_LE((points.getMin() - box.getMin()).length(), tolerance);
    EXPECT_LE((points.getMax() - box.getMax()).length(), tolerance);
}

// What was exported is there again.
void checkCopy(SoNode& scene)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("copy.glb");
    ASSERT_EQ(SceneExport(scene, path).write(), "");
    const FlatScene before = flatten(scene);
    const Outcome copy = open(path);
    if (before.meshes.empty())
        return;
    ASSERT_TRUE(copy.scene) << qPrintable(copy.error);
    const FlatScene after = flatten(*copy.scene);
    ASSERT_EQ(before.meshes.size(), after.meshes.size());
    EXPECT_EQ(count<SoLight>(*copy.scene) + std::size_t(before.leftOut.value("ambient lights")),
              count<SoLight>(scene));
    EXPECT_EQ(count<SoCamera>(*copy.scene), count<SoCamera>(scene));
    compareMaterials(before, after);
    compareSurroundings(scene, *copy.scene);
    comparePoints(scene, *copy.scene);
    compareMotion(scene, *copy.scene);
}

void check(const QString& path)
{
    SCOPED_TRACE(path.toStdString());
    const long expected = trianglesByImporter(path);
    const Outcome outcome = open(path);
    if (outcome.scene) {
        EXPECT_EQ(trianglesIn(outcome.scene.get()), expected);
        checkBox(*outcome.scene);
        checkCopy(*outcome.scene);
        return;
    }
    EXPECT_TRUE(outcome.error.contains(path)) << qPrintable(outcome.error);
    EXPECT_TRUE(outcome.error.endsWith('.') && !outcome.error.contains('\n')) << qPrintable(outcome.error);
    EXPECT_EQ(expected > 0, RefusedWithReason.contains(path.mid(Corpus.size()))) << qPrintable(outcome.error);
}

class CorpusFolder : public testing::TestWithParam<std::string>
{
};

TEST_P(CorpusFolder, OpensOrIsRefused)
{
    const QStringList endings = modelEndings();
    QDirIterator files(Corpus + QString::fromStdString(GetParam()), QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        if (endings.contains(files.fileInfo().suffix().toLower()))
            check(files.filePath());
    }
}

std::vector<std::string> folders()
{
    std::vector<std::string> names;
    for (const QString& name : QDir(Corpus).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        names.push_back(name.toStdString());
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, CorpusFolder, testing::ValuesIn(folders()), [](const auto& test) {
    std::string name = test.param;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

} // namespace
