// SPDX-License-Identifier: MIT
// The program as people start it, on a machine without a display.
#include <gtest/gtest.h>

#include <QtTest>

namespace
{

class Program : public testing::Test
{
protected:
    struct Outcome {
        int status;
        QString said; // on standard error, by the program itself
    };

    Outcome run(const QStringList& arguments)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(name);
        environment.insert("XDG_CONFIG_HOME", folder.path());
        environment.insert("XDG_RUNTIME_DIR", folder.path());
        process.setProcessEnvironment(environment);
        process.start(SCOPIX_PROGRAM, arguments);
        EXPECT_TRUE(process.waitForFinished(120000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        QStringList own;
        for (const QString& line : QString::fromUtf8(process.readAllStandardError()).split('\n')) {
            if (line.startsWith("scopix: "))
                own << line.mid(8);
        }
        return {process.exitCode(), own.join('\n')};
    }
    void expectRefusal(const QString& file, const QString& reason)
    {
        const Outcome outcome = run({file, "--quit"});
        EXPECT_NE(outcome.status, 0);
        EXPECT_TRUE(outcome.said.contains(file)) << qPrintable(outcome.said);
        EXPECT_TRUE(outcome.said.contains(reason)) << qPrintable(outcome.said);
        EXPECT_EQ(outcome.said.count('\n'), 0) << qPrintable(outcome.said);
    }
    QString write(const QString& name, const QByteArray& content)
    {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(content);
        return file.fileName();
    }
    static QString model() { return QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"); }

    QTemporaryDir folder;
};

TEST_F(Program, SavesWithoutADisplayAndSaysWhatIsLost)
{
    const QString path = folder.filePath("out.glb");
    const QString showcase = QStringLiteral(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg");
    Outcome outcome = run({showcase, "--save", path});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains("clip planes (1)")) << qPrintable(outcome.said);
    EXPECT_TRUE(outcome.said.contains("environment lights (1)")) << qPrintable(outcome.said);
    EXPECT_FALSE(outcome.said.contains("animations")) << qPrintable(outcome.said);
    outcome = run({path, "--save", folder.filePath("again.obj")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(QFile::exists(folder.filePath("again.obj")));
    outcome = run({showcase, "--save", folder.filePath("out.jpg")});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains("out.jpg")) << qPrintable(outcome.said);
}

TEST_F(Program, WritesAPictureOfTheWindowWithoutADisplay)
{
    const QString path = folder.filePath("out.png");
    const Outcome outcome = run({model(), "--select", "Glass.opacity", "--screenshot", path});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said, "");
    const QImage picture(path);
    ASSERT_EQ(picture.size(), QSize(1280, 800));
    QSet<QRgb> colors;
    for (int y = 100; y < 700; y += 4) {
        for (int x = 400; x < 900; x += 4)
            colors.insert(picture.pixel(x, y));
    }
    EXPECT_GT(colors.size(), 500);
}

// The buttons of the console, which a plug-in draws.
TEST_F(Program, DrawsIconsInTheScreensDensity)
{
    const QString path = folder.filePath("out.png");
    qputenv("QT_SCALE_FACTOR", "2");
    const Outcome outcome = run({"--profile", "Measure", "--screenshot", path}); // the console at the right
    qunsetenv("QT_SCALE_FACTOR");
    EXPECT_EQ(outcome.status, 0);
    const QImage picture(path);
    ASSERT_EQ(picture.size(), QSize(2560, 1600));
    int detailed = 0; // squares of what would be one pixel in the picture of half the size
    for (int y = 1160; y < 1200; y += 2) {
        for (int x = 2492; x < 2540; x += 2)
            detailed += picture.pixel(x, y) != picture.pixel(x + 1, y + 1) ? 1 : 0;
    }
    EXPECT_GT(detailed, 20);
}

TEST_F(Program, WritesPicturesOfTheViewAlone)
{
    const QString path = folder.filePath("view.png");
    Outcome outcome = run({model(), "--picture", path, "--size", "400x300", "--transparent"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said, "");
    const QImage picture(path);
    ASSERT_EQ(picture.size(), QSize(400, 300));
    EXPECT_EQ(qAlpha(picture.pixel(1, 1)), 0);
    QSet<QRgb> colors;
    for (int y = 0; y < 300; y += 2) {
        for (int x = 0; x < 400; x += 2)
            colors.insert(picture.pixel(x, y));
    }
    EXPECT_GT(colors.size(), 200);
    outcome =
        run({model(), "--picture", folder.filePath("turn.png"), "--size", "80x60", "--turntable", "10"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(QImage(folder.filePath("turn-01.png")).size(), QSize(80, 60));
    EXPECT_NE(QImage(folder.filePath("turn-10.png")), QImage(folder.filePath("turn-01.png")));
    EXPECT_FALSE(QFile::exists(folder.filePath("turn.png")));
    const QString scene = write("kept.xsg", "#Xsg V1.0 utf8\nCube {}\n");
    outcome = run({model(), "--picture", scene});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains(scene)) << qPrintable(outcome.said);
    outcome = run({folder.filePath("none.xsg"), "--picture", folder.filePath("none.png")});
    EXPECT_NE(outcome.status, 0);
    EXPECT_FALSE(QFile::exists(folder.filePath("none.png")));
}

TEST_F(Program, TellsAProblemOnceInTheUsersLanguageAndCommandsInEnglish)
{
    const QString scene = write("bad.xsg", "#Xsg V1.0 utf8\nCube { width: wide\n}\n");
    const QString picture = folder.filePath("out.png");
    const QByteArray before = qgetenv("SCOPIX_LANGUAGE");
    qputenv("SCOPIX_LANGUAGE", "de");
    const Outcome window = run({scene, "--screenshot", picture});
    const Outcome command = run({"print", scene});
    qputenv("SCOPIX_LANGUAGE", before);
    EXPECT_EQ(window.said,
              scene + ":2: Spalte 15: \"wide\" ist kein Wert von width, das den Typ SFFloat hat.");
    EXPECT_EQ(command.said, scene + ":2: Column 15: \"wide\" is no value of width, which is a SFFloat.");
}

TEST_F(Program, WritesNoPictureOfWhatItCannotOpen)
{
    const QString picture = folder.filePath("out.png");
    for (const QString& file : {folder.filePath("none.xsg"), write("bad.xsg", "#Xsg V1.0 utf8\nNo {"),
                                write("bad.glb", "no model at all\n")}) {
        const Outcome outcome = run({file, "--select", "Nothing.here", "--screenshot", picture});
        EXPECT_NE(outcome.status, 0);
        EXPECT_EQ(outcome.said.count('\n'), 0) << qPrintable(outcome.said);
        EXPECT_TRUE(outcome.said.contains(file)) << qPrintable(outcome.said);
        EXPECT_FALSE(QFile::exists(picture));
    }
}

TEST_F(Program, NamesTexturesThatAreMissingInAPicture)
{
    const QString scene =
        write("wall.xsg", "#Xsg V1.0 utf8\nSeparator { Texture2 { fileName: \"gone.png\" } Cube {} }\n");
    const Outcome outcome = run({scene, "--screenshot", folder.filePath("out.png")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said, folder.filePath("gone.png") +
                                ": The picture of a texture is missing; the texture is drawn without it.");
}

TEST_F(Program, SaysWhatOfAModelIsLeftOut)
{
    const QString model =
        write("tent.obj", "mtllib gone.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nusemtl cloth\nf 1 2 3\n");
    const Outcome outcome = run({model, "--quit"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said,
              "tent.obj: 1 file of materials is missing, so that default ones are used: “gone.mtl”.");
}

TEST_F(Program, SaysWhyNothingIsSeen)
{
    const std::pair<const char*, const char*> scenes[] = {
        {"Material {}", "it has no shapes that are drawn"},
        {"DrawStyle { style: INVISIBLE } Cube {}", "its draw styles make all of it invisible"},
        {"Material { transparency: 1 } Cube {}", "all of it is fully transparent"},
        {"Transform { scaleFactor: 1e30 1e30 1e30 } Cube {}",
         "all of it is too large, too small or too far away to be shown"}};
    for (const auto& [nodes, reason] : scenes) {
        const QString scene = write("bare.xsg", "#Xsg V1.0 utf8\nSeparator { " + QByteArray(nodes) + " }\n");
        const Outcome outcome = run({scene, "--quit"});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.said, QStringLiteral("bare.xsg: Nothing of it can be seen: %1.").arg(reason));
    }
}

// What is in a file controls no terminal.
TEST_F(Program, ShowsTheBytesOfAFileHarmlessly)
{
    const QByteArray token = "\x1b[31m" + QByteArray(20000, 'x') + '\0' + "\xe2\x80\xae";
    const QString names[] = {"evil\x1b]0;\n.xsg", QString(200, 'n') + ".xsg"};
    for (const QString& name : names) {
        const QString scene = write(name, "#Xsg V1.0 utf8\nSeparator { " + token + " }\n");
        const Outcome outcome = run({scene, "--select", token.left(9) + ".b", "--quit"});
        EXPECT_NE(outcome.status, 0);
        EXPECT_FALSE(outcome.said.isEmpty());
        EXPECT_LT(outcome.said.size(), 4000);
        for (const QChar c : outcome.said)
            ASSERT_TRUE(c.isPrint()) << c.unicode() << qPrintable(outcome.said);
    }
    const Outcome outcome = run({"--\x1b[2J", "--quit"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_FALSE(outcome.said.contains(QChar(0x1b)));
    EXPECT_TRUE(outcome.said.contains("\\x1B[2J")) << qPrintable(outcome.said);
}

TEST_F(Program, OpensAndEnds)
{
    const Outcome outcome = run({model(), "--quit"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.said, "");
}

TEST_F(Program, SaysThatThereIsNoDisplay)
{
    const Outcome outcome = run({model()});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains("--screenshot")) << qPrintable(outcome.said);
}

TEST_F(Program, RefusesWhatItCannotOpen)
{
    expectRefusal(folder.filePath("none.glb"), "there is no such file");
    expectRefusal(folder.path(), "it is a folder");
    expectRefusal(write("empty.glb", ""), "it is empty");
    expectRefusal(write("text.glb", "no model at all\n"), "it is no binary glTF file");
}

TEST_F(Program, RefusesAModelThatIsCut)
{
    QFile whole(model());
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    expectRefusal(write("cut.glb", whole.read(5000)), "it ends after 5000 of the");
}

TEST_F(Program, RefusesAModelWithoutMeshes)
{
    expectRefusal(write("bare.gltf", R"({"asset":{"version":"2.0"},"scene":0,"scenes":[{"nodes":[]}]})"),
                  "cannot be opened");
}

TEST_F(Program, RefusesToSelectWhatIsNotThere)
{
    const Outcome outcome = run({"--select", "Nobody.transparency", "--quit"});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains("Nobody")) << qPrintable(outcome.said);
}

TEST_F(Program, SelectsInWhatCouldBeOpenedOfSeveralFiles)
{
    const QString scene = write("good.xsg", "#Xsg V1.0 utf8\nSeparator { Material \"Paint\" {} Cube {} }\n");
    const QString missing = folder.filePath("none.xsg");
    Outcome outcome = run({missing, scene, "--select", "Paint.transparency", "--quit"});
    EXPECT_NE(outcome.status, 0);
    EXPECT_EQ(outcome.said.count('\n'), 0) << qPrintable(outcome.said);
    outcome = run({missing, scene, "--select", "Nobody.transparency", "--quit"});
    EXPECT_TRUE(outcome.said.contains("Nobody")) << qPrintable(outcome.said);
    outcome = run({missing, folder.filePath("nor.xsg"), "--select", "Nobody.transparency", "--quit"});
    EXPECT_FALSE(outcome.said.contains("Nobody")) << qPrintable(outcome.said);
}

TEST_F(Program, RefusesAnUnknownOption)
{
    const Outcome outcome = run({"--frobnicate"});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains("frobnicate")) << qPrintable(outcome.said);
}

TEST_F(Program, SaysWhereAPictureCannotBeWritten)
{
    const QString path = folder.filePath("nowhere/out.png");
    const Outcome outcome = run({"--screenshot", path});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.said.contains(path)) << qPrintable(outcome.said);
}

} // namespace
