// SPDX-License-Identifier: MIT
// The way from the process that reads models to the host.
#include "ModelFiles.h"

#include "model/ModelFile.h"
#include "reader/ModelReader.h"

using namespace scopix;

namespace
{

QByteArray written(const ModelReadResult& model)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(writeModelFile(model, buffer));
    return buffer.data();
}

bool read(const QByteArray& bytes, ModelReadResult& model)
{
    model = {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readModelFile(buffer, model);
}

TEST(ModelFile, TransfersEveryBit)
{
    for (const char* name : {"lighthouse.glb", "crate.gltf", "rainbow.ply"}) {
        const ModelReadResult model = readModel(shippedModel(name));
        const QByteArray bytes = written(model);
        ModelReadResult again;
        ASSERT_TRUE(read(bytes, again));
        EXPECT_EQ(written(again), bytes);
        EXPECT_EQ(again.data.meshes.size(), model.data.meshes.size());
        EXPECT_EQ(again.data.meshes[0].points, model.data.meshes[0].points);
        EXPECT_EQ(again.data.materials[0].name, model.data.materials[0].name);
        EXPECT_EQ(again.data.nodes.back().matrix, model.data.nodes.back().matrix);
    }
}

TEST(ModelFile, TransfersAnErrorAndNotes)
{
    ModelReadResult model;
    model.error = QStringLiteral("“ä” cannot be opened: ….");
    model.notes = {"One “ü”.", "Two."};
    ModelReadResult again;
    ASSERT_TRUE(read(written(model), again));
    EXPECT_EQ(again.error, model.error);
    EXPECT_EQ(again.notes, model.notes);
}

TEST(ModelFile, RefusesATruncatedFile)
{
    const QByteArray bytes = written(readModel(shippedModel("crate.gltf")));
    ModelReadResult model;
    for (int size = 0; size < bytes.size(); size += size < 400 ? 1 : 97)
        EXPECT_FALSE(read(bytes.left(size), model)) << size;
    EXPECT_FALSE(read(bytes + 'x', model));
}

TEST(ModelFile, AWrongCountAsksForNoMemory)
{
    ModelReadResult model;
    for (const int place : {4, 8}) { // the length of the error, the number of meshes
        QByteArray bytes = written({});
        bytes.replace(place, 8, QByteArray(8, '\x7e'));
        EXPECT_FALSE(read(bytes, model));
    }
}

TEST(ModelFile, RefusesInvalidReferences)
{
    const auto isRefused = [](auto spoil) {
        ModelReadResult model;
        model.data.nodes.resize(2);
        model.data.nodes[0].children = {1};
        model.data.meshes.resize(1);
        model.data.materials.resize(1);
        ModelReadResult again;
        EXPECT_TRUE(read(written(model), again));
        spoil(model.data);
        return !read(written(model), again);
    };
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[0].children = {2}; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[1].children = {1}; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[0].meshes = {1}; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[0].meshes = {-1}; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[0].light = 0; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.nodes[0].camera = -2; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.meshes[0].material = 1; }));
    EXPECT_TRUE(isRefused([](ModelData& m) { m.materials[0].picture = 0; }));
}

} // namespace
