// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/Output.h"
#include "commands/PostedNotes.h"
#include "commands/SceneFiles.h"
#include "commands/ScenePlace.h"
#include "support/OutputFile.h"
#include "viewport/SceneCamera.h"
#include "viewport/TextureImageLoader.h"
#include "viewport/ToneMappingNames.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/render/SoOffscreenRenderer.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

#include <array>
#include <optional>

namespace scopix
{

namespace
{

constexpr int MostFrames = 100000;
constexpr double FrameSeconds = 1.0 / 30;
constexpr float Quarter = 1.5707964F;

/// What the options ask for.
struct Wanted {
    int width = 800;
    int height = 600;
    int frames = 1;
    std::optional<SbColor> background;
    std::string camera;
    SoRenderer::ToneMapping toneMapping = SoRenderer::ToneMapping::Neutral;

    float aspect() const { return static_cast<float>(width) / static_cast<float>(height); }
};

/// A direction in which everything is looked at.
struct Side {
    const char* name;
    SbVec3f axis;
    float angle;
};

const std::array<Side, 7>& sides()
{
    static const std::array<Side, 7> all{{{"all", {0, 1, 0}, 0},
                                          {"front", {0, 1, 0}, 0},
                                          {"back", {0, 1, 0}, 2 * Quarter},
                                          {"left", {0, 1, 0}, -Quarter},
                                          {"right", {0, 1, 0}, Quarter},
                                          {"top", {1, 0, 0}, -Quarter},
                                          {"bottom", {1, 0, 0}, Quarter}}};
    return all;
}

bool takeColor(const std::string& text, Wanted& wanted)
{
    SbVec3f color;
    xsg::TextReader in(text);
    if (!xsg::ValueText<SbVec3f>::read(in, color) || !in.onlyBlanksLeft())
        return false;
    wanted.background = SbColor(color[0], color[1], color[2]);
    return true;
}

bool takeToneMapping(const std::string& text, Wanted& wanted)
{
    const auto named = toneMappingNamed(QString::fromStdString(text));
    wanted.toneMapping = named.value_or(wanted.toneMapping);
    return named.has_value();
}

bool take(const Arguments& arguments, Wanted& wanted)
{
    std::string problem;
    if (arguments.has("size") && !readSize(arguments.get("size"), wanted.width, wanted.height))
        problem = "--size expects WxH, such as 800x600, each from 1 to 16384, and not \"" +
                  arguments.get("size") + "\".";
    if (arguments.has("frames") && !readNumber(arguments.get("frames"), 1, MostFrames, wanted.frames))
        problem = "--frames expects a number from 1 to 100000, and not \"" + arguments.get("frames") + "\".";
    if (arguments.has("background") && !takeColor(arguments.get("background"), wanted))
        problem = "--background expects three numbers, such as \"0 0.5 1\", and not \"" +
                  arguments.get("background") + "\".";
    if (arguments.has("tone-mapping") && !takeToneMapping(arguments.get("tone-mapping"), wanted))
        problem = "--tone-mapping expects none, neutral or filmic, and not \"" +
                  arguments.get("tone-mapping") + "\".";
    wanted.camera = arguments.get("camera");
    if (!problem.empty())
        complain("picture: " + problem);
    return problem.empty();
}

bool canWritePicture(const std::string& path)
{
    QStringList endings;
    for (const QByteArray& format : QImageWriter::supportedImageFormats())
        endings += QString::fromLatin1(format);
    const QString file = QFile::decodeName(path.c_str());
    const QString reason = reasonAgainstWriting(file, endings);
    if (!reason.isEmpty())
        complain(QStringLiteral("The picture “%1” cannot be written: %2.").arg(file, reason).toStdString());
    return reason.isEmpty();
}

// OUT-0001.png for OUT.png, where there are several.
std::string frameName(const std::string& out, int frame, int frames)
{
    if (frames == 1)
        return out;
    const std::size_t slash = out.rfind('/');
    const std::size_t dot = out.rfind('.');
    const std::string number = std::to_string(frame + 1);
    const std::size_t digits = std::max<std::size_t>(4, std::to_string(frames).size());
    const std::size_t at = slash != std::string::npos && dot < slash ? out.size() : dot;
    return out.substr(0, at) + "-" + std::string(digits - number.size(), '0') + number + out.substr(at);
}

SoRef<SoCamera> lookFrom(const Side& side, SoNode* root, float aspect)
{
    auto* camera = new SoPerspectiveCamera;
    SoRef<SoCamera> result(camera);
    camera->orientation.setValue(SbRotation(side.axis, side.angle));
    camera->viewAll(SoBoundingBoxAction().getBox(root), aspect);
    return result;
}

// False where the camera that is asked for does not exist; null for the scene's own.
bool findCamera(const Wanted& wanted, SoNode* root, const std::string& file, SoRef<SoCamera>& camera)
{
    for (const Side& side : sides()) {
        if (wanted.camera == side.name) {
            camera = lookFrom(side, root, wanted.aspect());
            return true;
        }
    }
    if (wanted.camera.empty()) {
        const SceneCamera own = findSceneCamera(root);
        if (own.camera)
            matchCamera(own, wanted.aspect(), camera);
        return true;
    }
    xsg::SceneLookup lookup(root);
    const ScenePlace place = findPlace(lookup, wanted.camera, file);
    auto* found = place.field ? nullptr : dynamic_cast<SoCamera*>(place.node);
    camera = SoRef<SoCamera>(found);
    if (place.node && !found)
        complain("\"" + wanted.camera + "\" is no camera.");
    return found != nullptr;
}

bool writePicture(const SoPixels& pixels, const std::string& path)
{
    const QImage image(pixels.rgba.data(), pixels.width, pixels.height, pixels.width * 4,
                       QImage::Format_RGBA8888);
    QByteArray content;
    QBuffer buffer(&content);
    const QString file = QFile::decodeName(path.c_str());
    QImageWriter writer(&buffer, QFileInfo(file).suffix().toLower().toLatin1());
    const bool isMade = writer.write(image.convertToFormat(QImage::Format_RGB888));
    const QString reason = isMade ? replaceFile(file, content) : writer.errorString();
    if (!reason.isEmpty())
        complain(QStringLiteral("The picture “%1” cannot be written: %2.").arg(file, reason).toStdString());
    return reason.isEmpty();
}

// As a view does between two pictures.
void letTimePass(SoNode* root)
{
    SoTimeSource::getInstance().advance(SbTime(FrameSeconds), root);
    SoSensorQueue::getInstance().process();
}

} // namespace

int drawPicture(const Arguments& arguments)
{
    Wanted wanted;
    const std::string& out = arguments.values[1];
    if (!take(arguments, wanted) || !canWritePicture(out))
        return Failed;
    const SoRef<SoNode> root = loadOrComplain(arguments.values[0]);
    SoRef<SoCamera> camera;
    if (!root || !findCamera(wanted, root.get(), arguments.values[0], camera))
        return Failed;
    std::vector<std::string> notes;
    const PostedNotes posted(notes);
    SoOffscreenRenderer renderer;
    renderer.getRenderer().setFittingImageReader(TextureImageLoader::read);
    renderer.getRenderer().setToneMapping(wanted.toneMapping);
    if (wanted.background)
        renderer.getRenderer().setBackground(*wanted.background);
    SoSensorQueue::getInstance().process(); // a clip that the file has paused shows its time
    SoPixels pixels;
    for (int frame = 0; frame < wanted.frames; ++frame) {
        if (frame > 0)
            letTimePass(root.get());
        if (!renderer.render(root.get(), camera.get(), wanted.width, wanted.height, pixels)) {
            complain(renderer.getErrorText());
            return Failed;
        }
        if (!writePicture(pixels, frameName(out, frame, wanted.frames)))
            return Failed;
    }
    for (const std::string& note : notes)
        warn(note);
    return Fine;
}

} // namespace scopix
