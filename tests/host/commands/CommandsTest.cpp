// SPDX-License-Identifier: MIT
#include "CommandRun.h"

#include <xsg/frames/SoFrameFile.h>

namespace
{

using Commands = CommandRun;

QJsonDocument json(const QByteArray& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << text.constData();
    return document;
}

} // namespace

TEST_F(Commands, PrintShowsTreeNodeFieldAndValue)
{
    EXPECT_EQ(run({"print", "lamp.xsg"}).out, "Separator \"Lamp\"\n"
                                              "  PerspectiveCamera \"Eye\"\n"
                                              "  Material \"Glass\"\n"
                                              "  PointLight\n"
                                              "  Sphere \"Bulb\"\n"
                                              "  Cube\n"
                                              "  Cube\n"
                                              "  Separator \"two words\"\n"
                                              "    Sphere \"Bulb\" = /Bulb\n"
                                              "    Points\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "/Bulb"}).out, "radius: 2\nSphere \"Bulb\"\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "Bulb.radius"}).out, "2\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "/\"two words\"/Points.points[1]"}).out, "1 0 0\n");
    EXPECT_EQ(json(run({"print", "--json", "lamp.xsg", "/Cube.width"}).out).object()["follows"].toString(),
              "/Bulb.radius");
    expectRefusal({"print"}, "it expects FILE [PATH], and 0 arguments were given");
    expectRefusal({"print", "nowhere.xsg"}, "nowhere.xsg");
    expectRefusal({"print", "lamp.xsg", "/Lamp"}, "there is no Lamp below the root, which itself is \"/\"");
    expectRefusal({"print", "lamp.xsg", "/Bulb.width"}, "a Sphere has no field \"width\"");
    expectRefusal({"print", "lamp.xsg", "/Bulb.radius[0]"}, "the field is no list");
    expectRefusal({"print", "lamp.xsg", "Cube"}, "2 nodes are meant");
    expectRefusal({"print", "lamp.xsg", "/Bulb/"}, "is no path");
    expectRefusal({"print", "--loud", "lamp.xsg"}, "there is no option --loud");
    expectRefusal({"print", "--json=1", "lamp.xsg"}, "takes no value");
}

TEST_F(Commands, SetTakesTextsFormulasAndUnits)
{
    const Outcome outcome = run({"set", "lamp.xsg", "Bulb.radius=x*2", "Bulb.radius=+= 50 cm",
                                 "Eye.heightAngle=90deg", "/\"two words\"/Points.points[1]=x+1, 2*3, 30 cm",
                                 "Glass.diffuseColor=0 1 0", "/Cube[1].depth=7"});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.said);
    EXPECT_EQ(outcome.said, "");
    EXPECT_EQ(run({"print", "lamp.xsg", "Bulb.radius"}).out, "4.5\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "Eye.heightAngle"}).out, "1.5707964\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "Points.points"}).out, "[ 0 0 0, 2 6 0.3, 0 1 0 ]\n");
    EXPECT_EQ(run({"print", "lamp.xsg", "Glass.diffuseColor"}).out, "[ 0 1 0 ]\n");
}

TEST_F(Commands, SetKnowsUnitsAndLimitsOfEachField)
{
    const auto set = [this](const char* change) { return run({"set", "lamp.xsg", change}).status; };
    EXPECT_EQ(set("Bulb.radius=0"), 0);
    EXPECT_EQ(set("Eye.heightAngle=180deg"), 0);
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=-3"}, "it has to be 0 or more.");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=x-1 cm"}, "it has to be 0 or more.");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=90deg"}, "deg");
    expectRefusal({"set", "lamp.xsg", "Eye.heightAngle=181deg"}, "it has to be 0 to 3.1415927.");
    expectRefusal({"set", "lamp.xsg", "Eye.heightAngle=4"}, "it has to be 0 to 3.1415927.");
    expectRefusal({"set", "lamp.xsg", "Eye.heightAngle=3 cm"}, "cm");
    expectRefusal({"set", "lamp.xsg", "Glass.shininess=30 cm"}, "cm");
}

TEST_F(Commands, SetWritesAnotherFileOrStandardOutput)
{
    const QByteArray wanted = QByteArray(lamp()).replace("width: 3", "width: 5");
    EXPECT_EQ(run({"set", "lamp.xsg", "/Cube[1].width=5", "-o", "-"}).out, wanted);
    EXPECT_EQ(run({"set", "lamp.xsg", "/Cube[1].width=5", "-o", "new.xsg"}).status, 0);
    EXPECT_EQ(content("new.xsg"), wanted);
    EXPECT_EQ(content("lamp.xsg"), lamp());
}

TEST_F(Commands, SetSavesNothingWhereOneValueIsWrong)
{
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=3", "Bulb.radius=wide"}, "“wide” is not known here");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=1/0"}, "no finite number");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius"}, "PATH=VALUE was expected");
    expectRefusal({"set", "lamp.xsg", "Bulb=3"}, "is a node");
    expectRefusal({"set", "lamp.xsg", "Bulb.height=3"}, "has no field");
    expectRefusal({"set", "lamp.xsg", "Points.points[3]=1 2 3"}, "the list has 3 values");
    expectRefusal({"set", "lamp.xsg", "Points.points=a b c"}, "it is no value of a MFVec3f");
    expectRefusal({"set", "lamp.xsg", "Eye.position=1 2"}, "which has 3 numbers");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=3", "-o", "out.obj"}, "expected to end in .xsg");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=3", "-o", "nowhere/out.xsg"}, "nowhere/out.xsg");
    expectRefusal({"set", "lamp.xsg", "Bulb.radius=3", "-o"}, "-o expects OUT");
    expectRefusal({"set", model("knot.stl"), "/.name=3"}, "expected to end in .xsg");
}

TEST_F(Commands, FindPrintsPathsThatPrintTakes)
{
    const Outcome found = run({"find", "lamp.xsg", "type:Shape"});
    EXPECT_EQ(found.out, "/Bulb\n/Cube\n/Cube[1]\n");
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(run({"find", "lamp.xsg", "-type:Node | transparency>0"}).out, "/Glass\n");
    const QJsonArray list = json(run({"find", "--json", "lamp.xsg", "shared"}).out).array();
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].toObject()["path"].toString(), "/Bulb");
    EXPECT_EQ(run({"find", "lamp.xsg", "nothing"}).status, 1);
    expectRefusal({"find", "lamp.xsg", "name:"}, "name");
    expectRefusal({"find", "lamp.xsg", ""}, "nothing in it");
    expectRefusal({"find", "nowhere.xsg", "x"}, "nowhere.xsg");
}

TEST_F(Commands, DiffAndApplyMakeOneFileTheOther)
{
    EXPECT_EQ(run({"diff", "lamp.xsg", "lamp.xsg"}).status, 0);
    const Outcome diff = run({"diff", "lamp.xsg", "spare.xsg"});
    EXPECT_EQ(diff.status, 1);
    write("p.xsgpatch", diff.out);
    EXPECT_EQ(run({"apply", "p.xsgpatch", "lamp.xsg"}).status, 0);
    EXPECT_EQ(content("lamp.xsg"), run({"convert", "spare.xsg", "-"}).out);
    const QJsonObject again = json(run({"apply", "--json", "p.xsgpatch", "lamp.xsg"}).out).object();
    EXPECT_EQ(again["applied"].toInt(), 0);
    EXPECT_EQ(content("lamp.xsg"), run({"convert", "spare.xsg", "-"}).out);
    const QJsonArray changes = json(run({"diff", "--json", "spare.xsg", "lamp.xsg"}).out).array();
    EXPECT_EQ(changes.size(), 0);
}

TEST_F(Commands, DiffTellsOfEachChangeInJson)
{
    const QJsonArray changes = json(run({"diff", "--json", "lamp.xsg", "spare.xsg"}).out).array();
    QStringList lines;
    for (const QJsonValue& change : changes)
        lines += change.toObject()["line"].toString();
    EXPECT_EQ(lines.join('\n') + '\n',
              QString::fromUtf8(run({"diff", "lamp.xsg", "spare.xsg"}).out).section('\n', 1));
    EXPECT_EQ(changes[0].toObject()["path"].toString(), "/Bulb.radius");
    EXPECT_EQ(changes[0].toObject()["value"].toString(), "4");
    EXPECT_EQ(changes[0].toObject()["was"].toString(), "2");
    expectRefusal({"diff", "lamp.xsg", "nowhere.xsg"}, "nowhere.xsg");
}

TEST_F(Commands, ApplyListsWhatDoesNotFit)
{
    write("p.xsgpatch", "#XsgPatch V1.0 utf8\nset /Bulb.radius 7\nset /Nowhere.radius 7\n");
    const Outcome outcome = run({"apply", "p.xsgpatch", "lamp.xsg", "-o", "out.xsg"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.said.contains("line 3: set /Nowhere.radius: there is no Nowhere below the root."))
        << qPrintable(outcome.said);
    EXPECT_EQ(content("out.xsg"),
              QByteArray(lamp()).replace("radius: 2", "radius: 7").replace("width: 2", "width: 7"));
    write("bad.xsgpatch", "#XsgPatch V1.0 utf8\nset /Bulb.radius\n");
    expectRefusal({"apply", "bad.xsgpatch", "lamp.xsg"},
                  "bad.xsgpatch:2: a value or \"!default\" was expected");
    expectRefusal({"apply", "lamp.xsg", "lamp.xsg"}, "lamp.xsg:1: this is no patch");
    expectRefusal({"apply", "nowhere.xsgpatch", "lamp.xsg"}, "nowhere.xsgpatch");
    expectRefusal({"apply", "p.xsgpatch", "nowhere.xsg"}, "nowhere.xsg");
}

TEST_F(Commands, ConvertReadsModelsAndWritesScenes)
{
    for (const char* name : {"lighthouse.glb", "crate.gltf", "crate.obj", "knot.stl", "rainbow.ply"}) {
        const Outcome outcome = run({"convert", model(name), "out.xsg"});
        EXPECT_EQ(outcome.status, 0) << name << ": " << qPrintable(outcome.said);
        EXPECT_TRUE(content("out.xsg").startsWith("#Xsg V1.0 utf8\nSeparator")) << name;
        EXPECT_EQ(run({"print", "out.xsg"}).status, 0) << name;
        QFile::remove(folder.filePath("out.xsg"));
    }
    write("bad.glb", "this is no model");
    write("empty.obj", "");
    expectRefusal({"convert", "bad.glb", "out.xsg"}, "bad.glb");
    expectRefusal({"convert", "empty.obj", "out.xsg"}, "empty.obj");
    expectRefusal({"convert", "lamp.xsg", "out.fbx"}, "expected to end in .xsg");
    expectRefusal({"convert", "lamp.xsg"}, "it expects IN OUT");
}

TEST_F(Commands, ConvertWritesModelsAndSaysWhatTheyCannotKeep)
{
    for (const char* name : {"out.glb", "out.gltf", "out.obj", "out.ply", "out.stl"}) {
        const Outcome outcome = run({"convert", "lamp.xsg", name});
        EXPECT_EQ(outcome.status, 0) << name << ": " << qPrintable(outcome.said);
        EXPECT_EQ(run({"stats", name}).status, 0) << name;
    }
    EXPECT_TRUE(run({"convert", "lamp.xsg", "out.stl"}).said.contains("materials"));
}

TEST_F(Commands, PictureDrawsWithoutADisplay)
{
    EXPECT_EQ(run({"picture", "lamp.xsg", "out.png", "--size", "80x60", "--background", "0 0 1"}).status, 0);
    const QImage picture(folder.filePath("out.png"));
    ASSERT_EQ(picture.size(), QSize(80, 60));
    EXPECT_EQ(picture.pixel(1, 1), qRgb(0, 0, 255));
    EXPECT_NE(picture.pixel(40, 30), qRgb(0, 0, 255));
    for (const char* camera : {"all", "front", "back", "left", "right", "top", "bottom", "/Eye"}) {
        EXPECT_EQ(run({"picture", "lamp.xsg", "out.png", "--size=40x30", "--camera", camera}).status, 0)
            << camera;
        const QImage seen(folder.filePath("out.png"));
        EXPECT_NE(seen.pixel(20, 15), seen.pixel(0, 0)) << camera;
    }
    QFile::remove(folder.filePath("out.png"));
    expectRefusal({"picture", "lamp.xsg", "out.png", "--size", "80"}, "--size expects WxH");
    expectRefusal({"picture", "lamp.xsg", "out.png", "--frames", "0"}, "--frames expects a number");
    expectRefusal({"picture", "lamp.xsg", "out.png", "--background", "red"},
                  "--background expects three numbers");
    expectRefusal({"picture", "lamp.xsg", "out.png", "--tone-mapping", "loud"},
                  "--tone-mapping expects none, neutral or filmic");
    expectRefusal({"picture", "lamp.xsg", "out.png", "--camera", "/Bulb"}, "is no camera");
    expectRefusal({"picture", "lamp.xsg", "out.txt"}, "expected to end in");
    expectRefusal({"picture", "nowhere.xsg", "out.png"}, "nowhere.xsg");
}

TEST_F(Commands, PictureMapsBrightLightAsItIsAsked)
{
    write("glow.xsg", "#Xsg V1.0 utf8\nSeparator { PhysicalMaterial { emissiveColor: 2 1 0.5 } Cube { } }");
    QList<QImage> seen;
    for (const char* kind : {"none", "neutral", "filmic"}) {
        EXPECT_EQ(run({"picture", "glow.xsg", "out.png", "--size", "40x30", "--tone-mapping", kind}).status,
                  0);
        const QImage picture(folder.filePath("out.png"));
        EXPECT_FALSE(seen.contains(picture)) << kind;
        seen << picture;
    }
}

TEST_F(Commands, PictureDrawsFramesAsTimePasses)
{
    write("turn.xsg",
          "#Xsg V1.0 utf8\nSeparator {\n    Spin {\n        axis: 0 0 1\n        turnsPerSecond: 2\n    }\n"
          "    Cube {\n        width: 6\n    }\n}\n");
    EXPECT_EQ(run({"picture", "turn.xsg", "out.png", "--size", "64x64", "--camera", "front", "--frames", "3"})
                  .status,
              0);
    const QByteArray first = content("out-0001.png");
    EXPECT_FALSE(first.isEmpty());
    EXPECT_NE(content("out-0002.png"), first);
    EXPECT_NE(content("out-0003.png"), content("out-0002.png"));
    EXPECT_FALSE(QFile::exists(folder.filePath("out.png")));
}

TEST_F(Commands, CheckReportsWhatIsOdd)
{
    const Outcome fine = run({"check", "lamp.xsg", model("lighthouse.glb")});
    EXPECT_EQ(fine.status, 0);
    EXPECT_EQ(fine.out, "");
    write(
        "odd.xsg",
        "#Xsg V1.0 utf8\nSeparator {\n    Foreign {}\n    Texture2 {\n        fileName: \"gone.png\"\n    }\n"
        "    Sphere {\n        radius: nan\n    }\n    Switch {\n        whichChild: 3\n    }\n}\n");
    const Outcome odd = run({"check", "odd.xsg"});
    EXPECT_EQ(odd.status, 1);
    for (const char* part : {"odd.xsg: /Foreign is of the type Foreign", "gone.png, which does not exist",
                             "/Sphere has numbers in radius that are not finite",
                             "/Switch chooses child 3 of 0", "There is nothing to see in it."})
        EXPECT_TRUE(odd.out.contains(part)) << part << " in " << odd.out.constData();
    const Outcome worst = run({"check", "--json", "odd.xsg", "nowhere.xsg", "lamp.xsg"});
    EXPECT_EQ(worst.status, 2);
    const QJsonArray reports = json(worst.out).array();
    ASSERT_EQ(reports.size(), 3);
    EXPECT_EQ(reports[0].toObject()["notes"].toArray().size(), 5);
    EXPECT_EQ(reports[1].toObject()["status"].toInt(), 2);
    EXPECT_EQ(reports[2].toObject()["status"].toInt(), 0);
    expectRefusal({"check", "nowhere.xsg"}, "nowhere.xsg");
}

TEST_F(Commands, StatsCountsTheWholeAndItsBranches)
{
    const QJsonObject stats = json(run({"stats", "--json", "lamp.xsg"}).out).object();
    EXPECT_EQ(stats["nodes"].toInt(), 9);
    EXPECT_EQ(stats["groups"].toInt(), 2);
    EXPECT_EQ(stats["shapes"].toInt(), 4) << "one of them in two places";
    const QJsonArray branches = stats["branches"].toArray();
    ASSERT_EQ(branches.size(), 7);
    EXPECT_EQ(branches[5].toObject()["path"].toString(), "/Cube[1]");
    EXPECT_EQ(branches[5].toObject()["triangles"].toInt(), 12);
    EXPECT_EQ(branches[6].toObject()["nodes"].toInt(), 2)
        << "without the one that is shared with another branch";
    for (const char* key : {"nodes", "triangles", "bytes"}) {
        double sum = key == QByteArray("nodes") ? 1 : 0;
        for (const QJsonValue& branch : branches)
            sum += branch.toObject()[key].toDouble();
        EXPECT_LE(sum, stats[key].toDouble()) << key;
    }
    EXPECT_EQ(json(run({"stats", "--json", "lamp.xsg", "/\"two words\""}).out).object()["nodes"].toInt(), 3);
    EXPECT_TRUE(run({"stats", "lamp.xsg"}).out.contains("/Cube[1]\n"));
    expectRefusal({"stats", "lamp.xsg", "/Bulb.radius"}, "is a field");
    expectRefusal({"stats", "lamp.xsg", "/Nowhere"}, "there is no Nowhere");
    expectRefusal({"stats", "nowhere.xsg"}, "nowhere.xsg");
}

TEST_F(Commands, AFileOfACommandsNameIsOpenedByItsPath)
{
    write("print", lamp());
    const Outcome outcome = start(SCOPIX_PROGRAM, {"./print", "--version"});
    EXPECT_TRUE(outcome.out.startsWith("scopix ")) << outcome.out.constData();
}

TEST_F(Commands, AClosedPipeIsNoReasonToGoOn)
{
    const Outcome outcome = start("/bin/sh", {"-c", SCOPIX_PROGRAM " print lamp.xsg > /dev/full"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.said, "The output could not be written to its end.");
}

TEST_F(Commands, MeasureCountsAsOthersDo)
{
    const Outcome outcome =
        run({"measure", "lamp.xsg", "--frames", "3", "--size", "40x30", "--json", "-o", "kept.xsgframes"});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.said);
    const QJsonObject measured = json(outcome.out).object();
    EXPECT_EQ(measured["frames"].toInt(), 3);
    const QJsonObject figures = measured["figures"].toObject();
    const QJsonObject stats = json(run({"stats", "--json", "lamp.xsg"}).out).object();
    EXPECT_EQ(figures["Triangles"].toObject()["median"].toDouble(), stats["triangles"].toDouble());
    EXPECT_GT(figures["Whole"].toObject()["median"].toDouble(), 0);
    EXPECT_EQ(figures["Whole"].toObject()["unit"].toString(), "ms");
    EXPECT_EQ(figures["Uploads"].toObject()["median"].toDouble(), 0);
    SoFrameRecording kept;
    SbSentence problem;
    ASSERT_TRUE(SoFrameFile::read(folder.filePath("kept.xsgframes").toStdString(), kept, problem))
        << problem.getText();
    EXPECT_EQ(kept.getNumFrames(), 3U);
    EXPECT_EQ(kept.getAbout("size"), "40x30");
}

// No machine is as fast as the one recording says, and none as slow as the other.
TEST_F(Commands, MeasureSaysSlowerByItsExitStatus)
{
    const auto against = [this](std::int64_t nanoseconds) {
        SoFrameRecording old;
        old.columns = {{"Whole", "ns", false, {}}};
        old.setAbout("size", "40x30");
        SoFrameFile file;
        EXPECT_TRUE(file.open(folder.filePath("old.xsgframes").toStdString(), old));
        for (int i = 0; i < 12; ++i)
            old.columns[0].values.push_back(nanoseconds + i);
        EXPECT_TRUE(file.write(old));
        return run({"measure", "lamp.xsg", "--frames", "12", "--against", "old.xsgframes", "--json"});
    };
    const Outcome slower = against(1);
    EXPECT_EQ(slower.status, 1) << qPrintable(slower.said);
    const QJsonObject compared = json(slower.out).object()["against"].toObject();
    EXPECT_TRUE(compared["slower"].toBool());
    EXPECT_LT(compared["Whole"].toObject()["chance"].toDouble(), 0.01);
    EXPECT_EQ(against(1'000'000'000'000).status, 0);
}

TEST_F(Commands, MeasureRefusesWhatIsNoRecording)
{
    expectRefusal({"measure", "lamp.xsg", "--against", "lamp.xsg"}, "it is no recording of frames");
    expectRefusal({"measure", "lamp.xsg", "--frames", "0"}, "--frames expects a number");
    expectRefusal({"measure", "lamp.xsg", "--size", "big"}, "--size expects WxH");
    expectRefusal({"measure", "lamp.xsg", "--frames", "1", "--size", "8x8", "-o", "/dev/null"},
                  "cannot be written");
}
