// SPDX-License-Identifier: MIT
// docs/models.md: what becomes of models of many formats, beside what their files say. SCOPIX_PAGES=FOLDER
// writes the page and its pictures there.
#include "import/SceneBuilder.h"
#include "reader/ModelReader.h"
#include "viewport/TextureImageLoader.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/animation/SoAnimation.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <gtest/gtest.h>

#include <QtGui>

using namespace scopix;

namespace
{

const char* const Start = R"(# Models

What becomes of models of many formats, from the Debian package `assimp-testmodels`: what the file says, and below it what
of that is left out here. The same sentences are in the console when a file is opened. A clip has three pictures: as the
model stands without it, and after a third and two thirds of its time.

A test compares this page with what the models hold, and this makes the page and its pictures again:

    SCOPIX_PAGES=docs QT_QPA_PLATFORM=offscreen build/debug/bin/test_host_corpus --gtest_filter=ModelsPage.*
)";

const char* const Samples[] = {"glTF2/2CylinderEngine-glTF-Binary/2CylinderEngine.glb",
                               "glTF2/BoxTextured-glTF/BoxTextured.gltf",
                               "glTF2/ClearCoat-glTF/ClearCoatTest.gltf",
                               "glTF2/textureTransform/TextureTransformTest.gltf",
                               "glTF2/cameras/Cameras.gltf",
                               "glTF2/simple_skin/simple_skin.gltf",
                               "glTF2/glTF-Sample-Models/AnimatedMorphCube-glTF/AnimatedMorphCube.gltf",
                               "glTF2/glTF-Asset-Generator/Mesh_PrimitiveMode/Mesh_PrimitiveMode_00.gltf",
                               "glTF2/glTF-Asset-Generator/Mesh_PrimitiveMode/Mesh_PrimitiveMode_02.gltf",
                               "glTF/CesiumMilkTruck/CesiumMilkTruck.gltf",
                               "FBX/animation_with_skeleton.fbx",
                               "FBX/huesitos.fbx",
                               "FBX/spider.fbx",
                               "FBX/maxPbrMaterial_metalRough.fbx",
                               "FBX/phong_cube.fbx",
                               "Collada/duck.dae",
                               "Collada/box_nested_animation.dae",
                               "Collada/lights.dae",
                               "OBJ/spider.obj",
                               "OBJ/cube_with_vertexcolors.obj",
                               "OBJ/testpoints.obj",
                               "OBJ/testline.obj",
                               "PLY/Wuson.ply",
                               "PLY/float-color.ply",
                               "STL/Spider_binary.stl",
                               "3DS/fels.3ds",
                               "3MF/box.3mf",
                               "ASE/RotatingCube.ASE",
                               "B3D/WusonBlitz.b3d",
                               "BLEND/Suzanne_248.blend",
                               "IQM/mrfixit.iqm",
                               "MDL/MDL (HL1)/man.mdl",
                               "MS3D/jeep1.ms3d",
                               "X/anim_test.x"};

constexpr int Width = 200;
constexpr int Height = 150;
constexpr int LongestName = 40;

QString counted(std::size_t count, const char* one, const char* several)
{
    return QStringLiteral("%1 %2").arg(QLocale(QLocale::English).toString(count),
                                       QLatin1String(count == 1 ? one : several));
}

QString pictureName(const QString& sample)
{
    const QFileInfo file(sample);
    QString name = file.completeBaseName() + '-' + file.suffix().toLower();
    return name.replace(QRegularExpression("[^A-Za-z0-9_-]"), "-") + ".png";
}

class ModelsPage : public testing::Test
{
protected:
    static ModelReadResult read(const QString& sample)
    {
        return readModel(QStringLiteral(SCOPIX_MODEL_CORPUS "/") + sample);
    }

    // What the file says, in lines.
    static QStringList linesOf(const ModelData& model)
    {
        std::size_t parts[4] = {};
        for (const ModelData::Mesh& mesh : model.meshes)
            parts[mesh.corners] += mesh.index.size() / static_cast<std::size_t>(mesh.corners);
        QStringList things{counted(model.nodes.size(), "node", "nodes"),
                           counted(model.meshes.size(), "mesh", "meshes")};
        const std::tuple<std::size_t, const char*, const char*> more[] = {
            {parts[3], "triangle", "triangles"},
            {parts[2], "line", "lines"},
            {parts[1], "point", "points"},
            {model.materials.size(), "material", "materials"},
            {model.pictures.size(), "picture", "pictures"},
            {model.lights.size(), "light", "lights"},
            {model.cameras.size(), "camera", "cameras"}};
        for (const auto& [count, one, several] : more) {
            if (count > 0)
                things << counted(count, one, several);
        }
        QStringList lines{things.join(", ")};
        for (const ModelMotion::Skin& skin : model.motion.skins)
            lines << QString("a skin with %1").arg(counted(skin.bones.size(), "bone", "bones"));
        for (const ModelMotion::Morph& morph : model.motion.morphs)
            lines << counted(morph.weights.size(), "morph target", "morph targets");
        for (const ModelMotion::Clip& clip : model.motion.clips)
            lines << QString("a clip%1 of %2 s with %3")
                         .arg(clip.name.empty()
                                  ? QString()
                                  : " “" + QString::fromStdString(clip.name).left(LongestName) + "”",
                              QString::number(static_cast<double>(clip.seconds), 'f', 2),
                              counted(clip.tracks.size(), "track", "tracks"));
        return withCounts(lines);
    }

    // The same line several times is one.
    static QStringList withCounts(const QStringList& lines)
    {
        QStringList result;
        for (int i = 0; i < lines.size(); ++i) {
            const int count = lines.count(lines[i]);
            if (lines.indexOf(lines[i]) == i)
                result << (count > 1 ? QString("%1 times %2").arg(count).arg(lines[i]) : lines[i]);
        }
        return result;
    }

    static QString section(const QString& sample, const ModelReadResult& model)
    {
        QString text = QString("\n## %1\n\n![%1](pictures/models/%2)\n\n").arg(sample, pictureName(sample));
        for (const QString& line : linesOf(model.data))
            text += "- " + line + '\n';
        text += model.notes.empty() ? "\nNothing is left out.\n" : "\nLeft out:\n\n";
        for (const std::string& note : model.notes)
            text += "- " + QString::fromStdString(note) + '\n';
        return text;
    }

    static QImage draw(SoNode* scene)
    {
        static SoOffscreenRenderer renderer;
        renderer.getRenderer().setFittingImageReader(TextureImageLoader::read);
        renderer.getRenderer().setBackground({0.16F, 0.18F, 0.22F});
        const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
        camera->orientation.setValue(SbRotation({1, 0, 0}, -0.35F) * SbRotation({0, 1, 0}, 0.6F));
        camera->viewAll(SoBoundingBoxAction().getBox(scene), float(Width) / Height);
        SoPixels pixels;
        EXPECT_TRUE(renderer.render(scene, camera.get(), Width, Height, pixels)) << renderer.getErrorText();
        const QImage shared(pixels.rgba.data(), pixels.width, pixels.height, QImage::Format_RGBX8888);
        return shared.convertToFormat(QImage::Format_RGB888);
    }

    static QImage strip(SoNode& scene)
    {
        QVector<QImage> images{draw(&scene)};
        const std::vector<SoAnimation*> clips = SoAnimation::findBelow(scene);
        for (int third = 1; third < 3 && !clips.empty(); ++third) {
            clips.front()->goTo(clips.front()->getDuration() * third / 3);
            images << draw(&scene);
        }
        QImage all(Width * images.size(), Height, QImage::Format_RGB888);
        QPainter painter(&all);
        for (int i = 0; i < images.size(); ++i)
            painter.drawImage(Width * i, 0, images[i]);
        return all;
    }

    static bool isBlank(const QImage& image)
    {
        const QRgb ground = image.pixel(0, 0);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixel(x, y) != ground)
                    return false;
            }
        }
        return true;
    }
};

TEST_F(ModelsPage, SaysWhatIsInTheModelsAndWhatIsLeftOut)
{
    const QString target = qEnvironmentVariable("SCOPIX_PAGES");
    QString made = QLatin1String(Start);
    for (const char* sample : Samples) {
        const ModelReadResult model = read(QLatin1String(sample));
        EXPECT_EQ(model.error, "") << sample;
        made += section(QLatin1String(sample), model);
    }
    if (!target.isEmpty()) {
        QFile file(target + "/models.md");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(made.toUtf8()) > 0);
    }
    QFile page(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/models.md"));
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(page.readAll()).toStdString(), made.toStdString());
}

TEST_F(ModelsPage, ShowsEachModel)
{
    const QString target = qEnvironmentVariable("SCOPIX_PAGES");
    if (!target.isEmpty())
        QDir().mkpath(target + "/pictures/models");
    for (const char* sample : Samples) {
        const QString name = pictureName(QLatin1String(sample));
        const QImage drawn = strip(*buildScene(read(QLatin1String(sample)).data, "scene"));
        EXPECT_FALSE(isBlank(drawn)) << sample;
        if (!target.isEmpty()) {
            EXPECT_TRUE(drawn.save(target + "/pictures/models/" + name, nullptr, 0));
        }
        const QImage kept(QStringLiteral(SCOPIX_SOURCE_DIR "/docs/pictures/models/") + name);
        EXPECT_EQ(kept.size(), drawn.size()) << sample;
    }
}

} // namespace
