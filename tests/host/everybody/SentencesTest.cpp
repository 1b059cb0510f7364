// SPDX-License-Identifier: MIT
// What libraries without Qt say of formulas, queries, paths, scenes, patches and files is translated: a
// sentence that is not in the catalogue stays in English, and fails here.
#include "language/Languages.h"
#include "live/LiveSentences.h"
#include "live/SocketLink.h"
#include "plugins/LibraryTrust.h"
#include "support/OutputFile.h"

#include <scopix/SpxSentence.h>
#include <scopix/editing/expression/SpxExpression.h>
#include <scopix/live/client/SentenceOfProgram.h>
#include <xsg/changes/PatchApplication.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SceneReader.h>
#include <xsg/files/SceneReading.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/frames/SoFrameCsv.h>
#include <xsg/frames/SoFrameFile.h>
#include <xsg/paths/ChildTable.h>
#include <xsg/query/SoQuery.h>
#include <xsg/render/PictureBudget.h>
#include <xsg/render/SoOffscreenRenderer.h>
#include <xsg/support/SystemReason.h>

#include <support/BadPatchLines.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <set>

#include <sys/stat.h>
#include <unistd.h>

using namespace scopix;

namespace
{

const char* const Formulas[] = {"",
                                "1,5*2",
                                "1+",
                                "*2",
                                "1 2",
                                "(1",
                                "1)",
                                "foo",
                                "foo(1)",
                                "sqrt",
                                "sqrt()",
                                "clamp(1)",
                                "min()",
                                "round(1,2,3)",
                                "1 ; 2",
                                "\"x",
                                "1e999",
                                "90deg",
                                "5cm",
                                "2s",
                                "sin(5cm)",
                                "1cm*1cm",
                                "1deg*1deg",
                                "1s*1s",
                                "2^1cm",
                                "1cm cm",
                                "1cm+1cm*1cm",
                                "max(1cm,1cm*1cm)",
                                "exp(1cm)",
                                "sin(1deg*1deg)",
                                "+= 1",
                                "x *= 2cm"};
const char* const Queries[] = {"transparency>", "filename=", "name:",   "translation.q>1",
                               "a!b",           "-",         "/Switch["};
const char* const Paths[] = {"/a/", "//", "/a[x]", "/\"a", "/a.", "/a.\"\"", "/a b", "a]", "/a!"};
const char* const Scenes[] = {"no scene",
                              "",
                              "Cube {",
                              "Cube\n",
                              "Cube {} Cube {}",
                              "}",
                              ")",
                              "Separator { ) }",
                              "width: 1",
                              "Cube { Cube {} }",
                              "Cube @ {}",
                              "Cube { height 1 }",
                              "@a",
                              "Separator { Cube @a {} Cube @a {} }",
                              "Cube { nothing: 1\n}",
                              "Cube { width: wide\n}",
                              "Cube { width: 1 height: 2\n}",
                              "Cube { width: 1 !unheard }",
                              "Cube { width: <- 5 }",
                              "Cube { width: <- @a.width }",
                              "Material { diffuseColor: [ 1\n}",
                              "Cube \"a {}",
                              "Texture2 { filename: \"a\n}",
                              "Cube { width: 1 <- @a.filename } Cube {}",
                              "Separator { Cube @a { width: 1 <- @a.width\n} }"};
// Of the scene below.
const char* const Misfits[] = {"set /Cone.height 3",
                               "set /s.radius 3",
                               "set /Cube.radius 1",
                               "set /Cube.width wide",
                               "set /Cube.width[3] 1",
                               "set /Lines.points[7] 1 1 1",
                               "set /Lines.points[0] x",
                               "set /Cube.width 1 <- /Cube.filename",
                               "set /Cube.width 1 <- /Cube.width",
                               "set /Animation.nothing !default",
                               "set /Track.target /Cube extra",
                               "remove /Cube (3 -> 2)",
                               "insert /Cube/x (0 -> 1) first new Cube \"x\"",
                               "move /Nothing (0 -> 1) first from /Nowhere",
                               "order /Cone first",
                               "order /Cube after Cone",
                               "insert /g/h/g (0 -> 1) first from /g"};

class Sentences : public testing::Test
{
protected:
    Sentences()
    {
        qputenv("SCOPIX_LANGUAGE", "qps");
        Languages::begin();
        qunsetenv("SCOPIX_LANGUAGE");
        SoReadError::setHandlerCallback(nullptr, nullptr);
    }
    ~Sentences() override
    {
        SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr);
        delete Languages::instance();
    }

    static bool hasWords(const QString& text)
    {
        static const QRegularExpression letters(QStringLiteral("\\p{L}"));
        return QString(text).remove(QRegularExpression(QStringLiteral("%\\d"))).contains(letters);
    }
    // The sentence and whatever sentences stand in it.
    void expectTranslated(const SbSentence& sentence)
    {
        if (!sentence.getSource())
            return;
        const QString source = QString::fromUtf8(sentence.getSource());
        const QString shown = QCoreApplication::translate("Sentence", sentence.getSource());
        EXPECT_TRUE(!hasWords(source) || shown.startsWith('[')) << sentence.getSource();
        m_met.insert(sentence.getSource());
        for (const SbSentence& each : sentence.getArguments())
            expectTranslated(each);
    }
    // One that is there, and says something.
    void expectSaid(const SbSentence& sentence, const std::string& of)
    {
        EXPECT_TRUE(sentence.getSource()) << "“" << of << "” gives: " << sentence.getText();
        expectTranslated(sentence);
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }
    template <class Act>
    static void forCorpus(const char* of, const Act& act)
    {
        const QDir folder(QStringLiteral(SCOPIX_SOURCE_DIR "/fuzz/corpus/") + of);
        const QStringList names = folder.entryList(QDir::Files);
        EXPECT_FALSE(names.isEmpty()) << of;
        for (const QString& name : names) {
            const QByteArray content = contentOf(folder.filePath(name));
            act(std::string(content.constData(), std::size_t(content.size())));
        }
    }
    std::size_t met() const { return m_met.size(); }

private:
    std::set<std::string> m_met;
};

SoRef<SoNode> someScene()
{
    std::string error;
    SoRef<SoNode> scene = SoSceneFile::readText(
        "#Xsg V1.0 utf8\nGroup { Cube {} Sphere \"s\" {} Group \"g\" { Group \"h\" {} }\n"
        " Points \"Lines\" { points: [ 0 0 0 ]\n} Track {} Animation {} }",
        "scene", error);
    EXPECT_TRUE(scene) << error;
    return scene;
}

} // namespace

TEST_F(Sentences, OfFormulasAreTranslated)
{
    const auto expect = [this](const std::string& text) {
        for (const auto quantity :
             {SpxQuantity::Number, SpxQuantity::Angle, SpxQuantity::Length, SpxQuantity::Time}) {
            SpxExpressionSettings settings;
            settings.quantity = quantity;
            expectTranslated(SpxExpression(text, settings).getError().sentence);
            settings.variables = {"x"};
            expectTranslated(SpxExpression(text, settings).getError().sentence);
        }
    };
    for (const char* each : Formulas)
        expect(each);
    expect(std::string(SpxExpression::MaximumLength + 1, '1'));
    expect(std::string(150, '('));
    forCorpus("expression", expect);
    EXPECT_GE(met(), 30U);
}

TEST_F(Sentences, OfQueriesAndPathsAreTranslated)
{
    for (const char* each : Queries)
        expectSaid(SoQuery(each).getError(), each);
    for (const char* each : Paths)
        expectSaid(SoScenePath(each).getError(), each);
    forCorpus("path", [this](const std::string& text) { expectTranslated(SoScenePath(text).getError()); });
    const SoRef<SoNode> scene = someScene();
    xsg::SceneLookup lookup(scene.get());
    for (const char* each : {"/Cone", "/g/Cone", "/Group", "Group", "Nothing", "/Cube.radius"}) {
        SbSentence problem;
        if (lookup.find(SoScenePath(each).withoutField(), problem) && problem.empty())
            lookup.findField(SoScenePath(each), problem);
        expectSaid(problem, each);
    }
    EXPECT_GE(met(), 20U);
}

TEST_F(Sentences, OfScenesAreTranslated)
{
    const auto errorOf = [](const std::string& text) {
        xsg::SceneReader reader(text);
        return reader.read() ? SbSentence() : reader.getProblem();
    };
    expectSaid(errorOf(Scenes[0]), Scenes[0]);
    for (const char* each : Scenes)
        expectTranslated(errorOf(std::string(SoSceneFile::FirstLine) + "\n" + each));
    forCorpus("scene_file", [&](const std::string& text) { expectTranslated(errorOf(text)); });
    for (const char* path : {"/dev/zero", "/nowhere/at/all.xsg", SCOPIX_SOURCE_DIR "/README.md"}) {
        xsg::SceneReading reading(path);
        reading.advance(xsg::SceneReader::Clock::time_point::max());
        expectSaid(reading.getError(), path);
    }
    EXPECT_GE(met(), 26U);
}

TEST_F(Sentences, OfPatchesAreTranslated)
{
    const auto expect = [this](const std::string& text) {
        xsg::SceneChanges changes;
        SbSentence error;
        xsg::PatchText::read(text, "a.xsgpatch", changes, error);
        expectTranslated(error);
        SoRef<SoNode> scene = someScene();
        for (const SbSentence& each : xsg::applyChanges(changes, scene).misfits)
            expectTranslated(each);
        return error.empty();
    };
    const std::string head = std::string(xsg::PatchText::FirstLine) + "\n";
    for (const char* each : badPatchLines)
        EXPECT_FALSE(expect(head + each + "\n")) << each;
    for (const char* each : Misfits)
        EXPECT_TRUE(expect(head + each + "\n")) << each;
    EXPECT_FALSE(expect("no patch"));
    forCorpus("patch", [&](const std::string& text) { expect(head + text); });
    EXPECT_GE(met(), 45U);
}

TEST_F(Sentences, OfOtherFilesAreTranslated)
{
    SoFrameRecording recording;
    SbSentence problem;
    for (const char* path : {"/dev/zero", "/nowhere/at/all", SCOPIX_SOURCE_DIR "/README.md"}) {
        EXPECT_FALSE(SoFrameFile::read(path, recording, problem));
        expectSaid(problem, path);
    }
    for (const char* text : {"a,b\r\n1,2\r\n3\r\n", ""}) {
        EXPECT_FALSE(SoFrameCsv::read(text, recording, problem));
        expectSaid(problem, text);
    }
    for (const char* path : {"/dev/null", "/"})
        EXPECT_TRUE(replaceFile(QLatin1String(path), {}).startsWith('[')) << path;
}

TEST_F(Sentences, OfPicturesAreTranslated)
{
    SoOffscreenRenderer renderer;
    SoPixels pixels;
    EXPECT_FALSE(renderer.render(someScene().get(), nullptr, 0, 10, pixels));
    expectSaid(renderer.getError(), "a picture without a width");
}

TEST_F(Sentences, OfRunningProgramsAreTranslated)
{
    for (const char* const* each = live::SentencesOfPrograms; *each; ++each)
        EXPECT_TRUE(toText(live::Sentence::known(*each, {"1", "2", "3"}).text()).startsWith('[')) << *each;
    Languages::instance()->speak("de");
    EXPECT_EQ(toText("“radius” cannot be set: the value is of another type."),
              "„radius“ lässt sich nicht setzen: Der Wert ist von einem anderen Typ.");
    EXPECT_EQ(toText("It is not to its liking."), "It is not to its liking.") << "the words of the program";
}

TEST_F(Sentences, OfPicturesThatDoNotFitAreTranslated)
{
    const xsg::PictureBudget budget(xsg::PictureBudget::MiB);
    for (const SoImageSize& size : {SoImageSize{100, 100}, SoImageSize{5000, 10}})
        for (const SoImageSize& fitted : {SoImageSize{}, SoImageSize{50, 5}})
            expectSaid(xsg::describeFit("wood.png", size, fitted, budget, 4096), "a picture");
    EXPECT_GE(met(), 4U);
}

TEST_F(Sentences, OfTheSystemAreTranslated)
{
    for (const int code : {EACCES, EPERM, ENOENT, EEXIST, EISDIR, ENOTDIR, ELOOP, ENAMETOOLONG, EROFS, ENOSPC,
                           EDQUOT, EFBIG, EIO, EBUSY, ETXTBSY, EMFILE, ENFILE, ENOMEM}) {
        expectSaid(xsg::systemReason(code), std::to_string(code));
        EXPECT_EQ(xsg::systemReason(code).getText(), strerrordesc_np(code)) << "in English as ever";
    }
    EXPECT_EQ(xsg::systemReason(EDOM).getText(), std::strerror(EDOM));
}

TEST_F(Sentences, OfProgramsThatCannotBeAttachedToAreTranslated)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("no-program"));
    SocketLink link;
    EXPECT_TRUE(link.connectTo(path).startsWith('['));
    Languages::instance()->speak("de");
    EXPECT_EQ(link.connectTo(path),
              "Verbinden mit „" + path + "“ ist nicht möglich: Dort lauscht kein Programm mehr.");
    EXPECT_EQ(toText(live::Sentence("The program “%1” has ended or was killed.", {"mill"})),
              "Das Programm „mill“ hat sich beendet oder wurde abgebrochen.");
    EXPECT_EQ(toText(live::Sentence::verbatim("100 %1")), "100 %1") << "the words of the program";
}

TEST_F(Sentences, OfErrorsThatAreReportedAreThoseThatAreReturned)
{
    static QStringList reported;
    reported.clear();
    const auto collect = [](const SoError* error, void*) {
        reported << SpxSentence::translated(error->getSentence());
    };
    SoReadError::setHandlerCallback(collect, nullptr);
    Languages::instance()->speak("de");
    xsg::SceneReading missing("/nowhere/at/all.xsg");
    EXPECT_EQ(reported, QStringList(SpxSentence::translated(missing.getError())));
    xsg::SceneReading other(SCOPIX_SOURCE_DIR "/README.md");
    other.advance(xsg::SceneReader::Clock::time_point::max());
    EXPECT_EQ(reported.value(1), SpxSentence::translated(other.getError()));
    EXPECT_TRUE(reported.value(1).contains("README.md:1: Spalte 1: das ist keine Szenendatei"))
        << qPrintable(reported.value(1));
}

TEST_F(Sentences, OnWhyAPlugInIsNotTrustedAreWholeInGerman)
{
    Languages::instance()->speak("de");
    const QTemporaryDir folder;
    const QString library = folder.filePath(QStringLiteral("library.so"));
    QFile file(library);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const LibraryTrust trust(geteuid(), QStringLiteral("/usr/bin/env"));
    ASSERT_EQ(chmod(qPrintable(library), 0666), 0);
    EXPECT_TRUE(trust.whyNot(library).startsWith("jeder Benutzer darf es ändern,"));
    ASSERT_EQ(chmod(qPrintable(library), 0600), 0);
    ASSERT_EQ(chmod(qPrintable(folder.path()), 0777), 0);
    EXPECT_TRUE(trust.whyNot(library).startsWith("jeder Benutzer darf in seinen Ordner „" + folder.path() +
                                                 "“ schreiben,"));
}

TEST_F(Sentences, AreWholeInGerman)
{
    Languages::instance()->speak("de");
    SpxExpressionSettings settings;
    settings.quantity = SpxQuantity::Angle;
    EXPECT_EQ(SpxSentence::translated(SpxExpression("5cm", settings).getError().sentence),
              "Mit „cm“ ist eine Länge gemeint, hier ist aber ein Winkel verlangt.");
    EXPECT_EQ(
        SpxSentence::translated(SoQuery("/a[x]").getError()),
        "\"/a[x]\" ist kein Pfad: nach \"[\" wurden eine Nummer, von 0 an gezählt, und \"]\" erwartet.");
    xsg::SceneChanges changes;
    SbSentence error;
    EXPECT_FALSE(xsg::PatchText::read(std::string(xsg::PatchText::FirstLine) + "\nset a.b 1\n", "a.xsgpatch",
                                      changes, error));
    EXPECT_EQ(SpxSentence::translated(error),
              "a.xsgpatch:2: statt \"a.b 1\" wurde ein Pfad, der mit \"/\" beginnt, erwartet.");
    EXPECT_EQ(error.getText(),
              "a.xsgpatch:2: a path, which starts with \"/\", was expected instead of \"a.b 1\".");
}
