// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/PostedNotes.h"
#include "commands/SceneFiles.h"
#include "viewport/TextureImageLoader.h"

#include <xsg/frames/SoFrameFile.h>
#include <xsg/frames/SoFramePhase.h>
#include <xsg/frames/SoFrameStatistics.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/render/SoOffscreenRenderer.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QDateTime>

#include <array>
#include <cstdio>

namespace scopix
{

namespace
{

constexpr int FirstFrames = 10; // which fill caches, and are left out
constexpr int MostFrames = 3000;
constexpr double FrameSeconds = 1.0 / 60;
// Less than this between two runs is the machine's mood, however certain.
constexpr double LeastChange = 0.05;

constexpr std::array Shown{SoFrame::Whole,       SoFrame::Update,    SoFrame::Traverse,     SoFrame::Cull,
                           SoFrame::Upload,      SoFrame::Draw,      SoFrame::Gpu,          SoFrame::Memory,
                           SoFrame::DrawCalls,   SoFrame::Triangles, SoFrame::StateChanges, SoFrame::Uploads,
                           SoFrame::NodesVisited};

const SoFrameColumn& columnOf(const SoFrameRecording& recording, SoFrame::Figure figure)
{
    static const SoFrameColumn none;
    const SoFrameColumn* column = recording.findColumn(SoFrame::getName(figure));
    return column ? *column : none;
}

std::string unitOf(SoFrame::Figure figure)
{
    const std::string unit = SoFrame::getUnit(figure);
    return unit == "ns" ? "ms" : unit;
}

void letTimePass(SoNode* root, SoFrameLog& log)
{
    const SoFrameUpdate update(log);
    SoTimeSource::getInstance().advance(SbTime(FrameSeconds), root);
    SoSensorQueue::getInstance().process();
}

/// What is measured.
struct Wanted {
    int frames = 120;
    int width = 800;
    int height = 600;
};

// False, and said, where it cannot be drawn.
bool measure(SoNode* root, const Wanted& wanted, SoFrameRecording& recording)
{
    const int frames = wanted.frames;
    SoFrameLog log;
    log.setTimesEach(true);
    SoOffscreenRenderer renderer;
    renderer.getRenderer().setFittingImageReader(TextureImageLoader::read);
    renderer.getRenderer().setFrameLog(&log);
    SoPixels pixels;
    const auto draw = [&] {
        letTimePass(root, log);
        return renderer.render(root, nullptr, wanted.width, wanted.height, pixels);
    };
    bool isDrawn = true;
    for (int i = 0; i < FirstFrames && isDrawn; ++i)
        isDrawn = draw();
    log.addUser();
    SoFrameReader reader(log);
    recording = reader.makeEmpty();
    for (int i = 0; i < frames && isDrawn; ++i)
        isDrawn = draw();
    isDrawn = isDrawn && draw(); // which collects the times of the last ones
    if (!isDrawn) {
        complain(renderer.getErrorText());
        return false;
    }
    reader.take(recording);
    for (SoFrameColumn& column : recording.columns)
        column.values.resize(static_cast<std::size_t>(frames));
    return true;
}

// What the measured frames are of, and when.
void describe(const std::string& file, const Wanted& wanted, SoFrameRecording& recording)
{
    recording.setAbout("scene", file);
    recording.setAbout("size", std::to_string(wanted.width) + "x" + std::to_string(wanted.height));
    recording.setAbout("program", "scopix measure " + QCoreApplication::applicationVersion().toStdString());
    recording.setAbout("began", QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString());
}

std::string number(double value)
{
    char text[64];
    std::snprintf(text, sizeof text, std::abs(value) >= 1000 ? "%12.0f" : "%12.3f", value);
    return text;
}

void printTable(const SoFrameRecording& recording)
{
    print(std::string(15, ' ') +
          "      median        mean        95 %        99 %     longest    +-spread\n");
    for (const SoFrame::Figure figure : Shown) {
        const std::vector<double> known = columnOf(recording, figure).getKnown();
        if (known.empty())
            continue;
        const SoFrameSummary of = SoFrameSummary::of(known);
        std::string name = SoFrame::getName(figure);
        name.resize(15, ' ');
        print(name + number(of.median) + number(of.mean) + number(of.percent95) + number(of.percent99) +
              number(of.longest) + number(of.spread) + " " + unitOf(figure) + "\n");
    }
}

void write(JsonText& json, const char* name, double value)
{
    json.key(name);
    json.number(value);
}

void writeFigures(JsonText& json, const SoFrameRecording& recording)
{
    json.key("figures");
    json.beginObject();
    for (const SoFrame::Figure figure : Shown) {
        const std::vector<double> known = columnOf(recording, figure).getKnown();
        if (known.empty())
            continue;
        const SoFrameSummary of = SoFrameSummary::of(known);
        json.key(SoFrame::getName(figure));
        json.beginObject();
        json.text("unit", unitOf(figure));
        write(json, "median", of.median);
        write(json, "mean", of.mean);
        write(json, "percent95", of.percent95);
        write(json, "percent99", of.percent99);
        write(json, "longest", of.longest);
        write(json, "spread", of.spread);
        json.endObject();
    }
    json.endObject();
}

/// One figure of two recordings.
struct Compared {
    SoFrame::Figure figure;
    SoFrameComparison comparison;

    bool isSlower() const
    {
        const bool isTime = figure == SoFrame::Whole || figure == SoFrame::Gpu;
        return isTime && comparison.isSignificant() && comparison.getChange() >= LeastChange;
    }
};

std::vector<Compared> compare(const SoFrameRecording& old, const SoFrameRecording& recording)
{
    std::vector<Compared> all;
    for (const SoFrame::Figure figure : Shown) {
        const std::vector<double> before = columnOf(old, figure).getKnown();
        const std::vector<double> after = columnOf(recording, figure).getKnown();
        if (!before.empty() && !after.empty())
            all.push_back({figure, SoFrameComparison::of(before, after)});
    }
    return all;
}

bool isSlower(const std::vector<Compared>& all)
{
    return std::any_of(all.begin(), all.end(), [](const Compared& each) { return each.isSlower(); });
}

void printComparison(const std::vector<Compared>& all)
{
    print("\n" + std::string(15, ' ') + "      before       after    change %    chance %\n");
    for (const Compared& each : all) {
        std::string name = SoFrame::getName(each.figure);
        name.resize(15, ' ');
        print(name + number(each.comparison.before) + number(each.comparison.after) +
              number(each.comparison.getChange() * 100) + number(each.comparison.chance * 100) +
              (each.isSlower() ? "  slower" : "") + "\n");
    }
}

void writeComparison(JsonText& json, const std::vector<Compared>& all)
{
    json.key("against");
    json.beginObject();
    json.text("test", "Mann-Whitney");
    json.boolean("slower", isSlower(all));
    for (const Compared& each : all) {
        json.key(SoFrame::getName(each.figure));
        json.beginObject();
        write(json, "before", each.comparison.before);
        write(json, "after", each.comparison.after);
        write(json, "change", each.comparison.getChange());
        write(json, "chance", each.comparison.chance);
        json.endObject();
    }
    json.endObject();
}

void printJson(const SoFrameRecording& recording, const std::vector<Compared>& compared)
{
    JsonText json;
    json.beginObject();
    json.text("scene", recording.getAbout("scene"));
    json.number("frames", static_cast<std::int64_t>(recording.getNumFrames()));
    writeFigures(json, recording);
    if (!compared.empty())
        writeComparison(json, compared);
    json.endObject();
    print(json.take() + "\n");
}

bool readOld(const std::string& path, SoFrameRecording& old)
{
    SbSentence problem;
    if (SoFrameFile::read(path, old, problem))
        return true;
    complain("The recording \"" + path + "\" cannot be read: " + problem.getText() + ".");
    return false;
}

bool keep(const std::string& path, const SoFrameRecording& recording)
{
    SoFrameFile file;
    if (file.open(path, recording) && file.write(recording))
        return true;
    complain("The recording \"" + path + "\" cannot be written: " + file.getProblem().getText() + ".");
    return false;
}

// False, and said, where they make no sense. Compared pictures are of one size, unless it is said.
bool take(const Arguments& arguments, const SoFrameRecording& old, Wanted& wanted)
{
    std::string problem;
    readSize(old.getAbout("size"), wanted.width, wanted.height);
    if (arguments.has("size") && !readSize(arguments.get("size"), wanted.width, wanted.height))
        problem = "--size expects WxH, such as 800x600, each from 1 to 16384, and not \"" +
                  arguments.get("size") + "\".";
    if (arguments.has("frames") && !readNumber(arguments.get("frames"), 1, MostFrames, wanted.frames))
        problem = "--frames expects a number from 1 to 3000, and not \"" + arguments.get("frames") + "\".";
    if (!problem.empty())
        complain("measure: " + problem);
    return problem.empty();
}

} // namespace

int measureScene(const Arguments& arguments)
{
    SoFrameRecording old;
    Wanted wanted;
    if (arguments.has("against") && !readOld(arguments.get("against"), old))
        return Failed;
    if (!take(arguments, old, wanted))
        return Failed;
    const SoRef<SoNode> root = loadOrComplain(arguments.values[0]);
    std::vector<std::string> notes;
    const PostedNotes posted(notes);
    SoFrameRecording recording;
    if (!root || !measure(root.get(), wanted, recording))
        return Failed;
    describe(arguments.values[0], wanted, recording);
    if (arguments.has("o") && !keep(arguments.get("o"), recording))
        return Failed;
    const std::vector<Compared> compared = compare(old, recording);
    if (arguments.has("json")) {
        printJson(recording, compared);
    } else {
        printTable(recording);
        if (!compared.empty())
            printComparison(compared);
    }
    for (const std::string& note : notes)
        warn(note);
    return isSlower(compared) ? Differs : Fine;
}

} // namespace scopix
