// SPDX-License-Identifier: MIT
// What cannot be opened is named in one sentence that says what was expected.
#include "ModelFiles.h"

#include "reader/ModelReader.h"

#include <cstring>

#include <sys/stat.h>

using namespace scopix;

namespace
{

class BadModel : public testing::Test
{
protected:
    void expectRefusal(const QString& path, const char* reason)
    {
        const ModelReadResult model = readModel(path);
        EXPECT_TRUE(model.error.contains(path)) << qPrintable(model.error);
        EXPECT_TRUE(model.error.contains(QString::fromUtf8(reason))) << qPrintable(model.error);
        EXPECT_EQ(model.error.count(QLatin1Char('\n')), 0) << qPrintable(model.error);
        EXPECT_TRUE(model.error.endsWith(QLatin1Char('.'))) << qPrintable(model.error);
        EXPECT_TRUE(model.data.nodes.empty());
    }
    ModelFiles files;
};

TEST_F(BadModel, MissingFile)
{
    expectRefusal(files.path("none.glb"), "there is no such file");
}

TEST_F(BadModel, Folder)
{
    expectRefusal(files.folder(), "it is a folder, and a file was expected");
}

TEST_F(BadModel, EmptyFile)
{
    expectRefusal(files.write("empty.gltf", ""), "it is empty");
}

TEST_F(BadModel, UnknownEnding)
{
    expectRefusal(files.write("model.docx", "x"), "its name was expected to end in .gltf, .glb");
}

TEST_F(BadModel, TextNamedGlb)
{
    expectRefusal(files.write("text.glb", "This is no model.\n"), "it is no binary glTF file");
}

TEST_F(BadModel, TruncatedGlb)
{
    const QByteArray whole = contentOf(shippedModel("lighthouse.glb"));
    ASSERT_GT(whole.size(), 1000);
    expectRefusal(files.write("half.glb", whole.left(whole.size() / 2)), "bytes that its header announces");
    expectRefusal(files.write("head.glb", whole.left(10)), "it ends after 10 of the 12 bytes");
}

TEST_F(BadModel, GlbWhoseInsideIsCut)
{
    // The header agrees with the size, what follows does not.
    QByteArray cut = contentOf(shippedModel("lighthouse.glb")).left(20000);
    const auto size = static_cast<quint32>(cut.size());
    std::memcpy(cut.data() + 8, &size, 4);
    expectRefusal(files.write("cut.glb", cut), "cannot be opened");
}

TEST_F(BadModel, NoMeshes)
{
    expectRefusal(files.write("bare.gltf", R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[0]}],)"
                                           R"("nodes":[{"name":"alone"}]})"),
                  "it holds no mesh, and at least one was expected");
    expectRefusal(files.write("bare.obj", "# nothing\n"), "cannot be opened");
}

TEST_F(BadModel, GltfWithoutItsGeometryFile)
{
    expectRefusal(files.write("crate.gltf", contentOf(shippedModel("crate.gltf"))), "crate.bin");
}

TEST_F(BadModel, GltfThatIsBroken)
{
    const QByteArray whole = contentOf(shippedModel("crate.gltf"));
    expectRefusal(files.write("cut.gltf", whole.left(whole.size() / 2)), "its JSON text is broken at line ");
    expectRefusal(files.write("text.gltf", "{\n \"asset\": no"),
                  "broken at line 2, column 12 (illegal value)");
    expectRefusal(files.write("bare.gltf", "{}"), "its “asset” was expected to name a version of glTF");
    expectRefusal(files.write("new.gltf", R"({"asset":{"version":"7.5"}})"), "its version of glTF is 7.5");
    expectRefusal(
        files.write("nodes.gltf", R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[77]}]})"),
        "it is not a whole model");
    QByteArray binary("glTF\2\0\0\0....\4\0\0\0JSON{\"a\"", 24);
    const auto size = static_cast<quint32>(binary.size());
    std::memcpy(binary.data() + 8, &size, 4);
    expectRefusal(files.write("chunk.glb", binary), "its JSON text is broken at line 1");
}

TEST_F(BadModel, OtherFileWithTheEndingOfAModel)
{
    expectRefusal(files.write("text.xml", "This is no model.\n"), "the kind that its ending, .xml, says");
}

// Once kept the importer busy for ever.
TEST_F(BadModel, TruncatedPly)
{
    const QByteArray whole = contentOf(shippedModel("rainbow.ply"));
    expectRefusal(files.write("cut.ply", whole.left(whole.size() / 2)),
                  "lines follow its header, which announces");
    expectRefusal(files.write("cut.ply", whole.left(60)), "end_header");
    expectRefusal(files.write("cut.ply",
                              "ply\nformat binary_little_endian 1.0\nelement vertex 5\nproperty float x\n"
                              "end_header\n0123"),
                  "4 bytes follow its header, which announces at least 20");
    expectRefusal(files.write("cut.ply", "ply\nelement vertex many\nend_header\n"), "should end in a count");
}

TEST_F(BadModel, PipeThatNobodyWritesTo)
{
    const QString path = files.path("pipe.obj");
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    expectRefusal(path, "it is no file with an end");
}

TEST_F(BadModel, EveryCutOfATextFormatIsRefusedOrRead)
{
    for (const char* name : {"rainbow.ply", "crate.obj", "crate.gltf", "knot.stl"}) {
        const QByteArray whole = contentOf(shippedModel(name));
        for (int part = 0; part < 10; ++part) {
            const QString path = files.write(name, whole.left(whole.size() * part / 10 + 20));
            const ModelReadResult model = readModel(path);
            EXPECT_NE(model.error.isEmpty(), model.data.nodes.empty());
        }
    }
}

// The importer opens whatever a model names.
TEST_F(BadModel, PipesThatAModelIsMadeOf)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(files.path("data.bin")).constData(), 0600), 0);
    const QString gltf = files.write(
        "piped.gltf", R"({"asset":{"version":"2.0"},"buffers":[{"uri":"data.bin","byteLength":36}],)"
                      R"("bufferViews":[{"buffer":0,"byteLength":36}],)"
                      R"("accessors":[{"bufferView":0,"componentType":5126,"count":3,"type":"VEC3"}],)"
                      R"("meshes":[{"primitives":[{"attributes":{"POSITION":0}}]}],)"
                      R"("nodes":[{"mesh":0}],"scenes":[{"nodes":[0]}],"scene":0})");
    expectRefusal(gltf, "data.bin");
    ASSERT_EQ(mkfifo(QFile::encodeName(files.path("look.mtl")).constData(), 0600), 0);
    const ModelReadResult model = readModel(
        files.write("piped.obj", "mtllib look.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl paint\nf 1 2 3\n"));
    EXPECT_TRUE(model.error.isEmpty()) << qPrintable(model.error);
}

} // namespace
