// SPDX-License-Identifier: MIT
// Scenes that are read and written in pieces, while they change.
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>
#include <xsg/core/SoChangeListener.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SceneReading.h>
#include <xsg/files/SceneRecords.h>
#include <xsg/files/SceneWriter.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>
#include <utility>

namespace
{

const std::string Head = "#Xsg V1.0 utf8\n";
const auto NoTime = xsg::SceneReader::Clock::time_point::min();

// Hands out a text in pieces of at most so many bytes.
xsg::SceneText::Source piecesOf(const std::string& text, std::size_t most)
{
    return [&text, most, at = std::size_t{0}](char* to, std::size_t size) mutable {
        const std::size_t count = std::min({size, most, text.size() - at});
        std::memcpy(to, text.data() + at, count);
        at += count;
        return count;
    };
}

SoRef<SoNode> readInPieces(const std::string& text, std::size_t most, std::string* problem = nullptr)
{
    xsg::SceneReader reader(piecesOf(text, most));
    while (!reader.advance(NoTime)) {
    }
    if (problem)
        *problem = std::to_string(reader.getLine()) + ':' + std::to_string(reader.getColumn()) + ' ' +
                   reader.getProblem().getText();
    return reader.takeScene();
}

std::string writeInPieces(const SoNode* root)
{
    std::string text;
    xsg::SceneWriter writer([&](const std::string& piece) { text += piece; });
    writer.begin(root);
    while (!writer.advance(NoTime)) {
    }
    return text;
}

std::string mixedText()
{
    std::string text = Head + "Separator \"whole \\\"scene\\\"\" {\n    Cube @paint {}\n";
    for (int i = 0; i < 20; ++i) {
        const std::string n = std::to_string(i);
        text += "    Separator \"part " + n + "\" { # here\n        Points @p" + n +
                " {\n            points: [ 1 2 3,\n4 5 " + n +
                " ]\n        }\n        ScreenText {\n            lines: [ \"a # ] } \\\\\", \"\" ]\n"
                "            size: 5 !ignored <- @paint.width\n        }\n        Wormhole {\n"
                "            mouth: { 3\n        }\n        FieldGallery {\n            sfNode: @p" +
                n + "\n            mfNode: [ @paint, NULL ]\n        }\n        @paint\n    }\n";
    }
    return text + "}\n";
}

} // namespace

TEST(ScenePieces, AreReadAsTheWholeIs)
{
    const std::string text = mixedText();
    std::string error;
    const auto whole = SoSceneFile::readText(text, "whole", error);
    ASSERT_TRUE(whole) << error;
    const std::string written = SoSceneFile::writeText(whole.get());
    for (const std::size_t most : {1U, 2U, 7U, 100U, 5000U}) {
        std::string problem;
        const auto scene = readInPieces(text, most, &problem);
        ASSERT_TRUE(scene) << most << ": " << problem;
        EXPECT_EQ(SoSceneFile::writeText(scene.get()), written) << most;
        EXPECT_EQ(writeInPieces(scene.get()), written);
    }
}

TEST(ScenePieces, HaveTheErrorsOfTheWhole)
{
    const std::string text = mixedText();
    for (std::size_t length = Head.size() + 1; length < text.size(); length += 61) {
        std::string cut = text.substr(0, length);
        if (length % 2 == 0)
            cut += ")\n"; // something wrong, with a place
        xsg::SceneReader whole(cut);
        ASSERT_FALSE(whole.read());
        std::string problem;
        EXPECT_FALSE(readInPieces(cut, 3, &problem));
        EXPECT_EQ(problem, std::to_string(whole.getLine()) + ':' + std::to_string(whole.getColumn()) + ' ' +
                               whole.getProblem().getText());
    }
}

TEST(ScenePieces, AByteOrderMarkIsSkipped)
{
    std::string error;
    EXPECT_TRUE(SoSceneFile::readText("\xef\xbb\xbf" + Head + "Cube {}\n", "marked", error)) << error;
}

TEST(ScenePieces, LongValuesAreReadByAnotherThread)
{
    SoRef<SoSeparator> root(new SoSeparator);
    auto* points = new SoPoints;
    root->addChild(points);
    std::vector<SbVec3f> values;
    for (int i = 0; i < 100'000; ++i)
        values.emplace_back(static_cast<float>(i) * 0.1F, 1.0F, -3e-7F);
    points->points.setValues(values);
    points->points.setIgnored(true);
    std::string text = SoSceneFile::writeText(root.get());
    ASSERT_GT(text.size(), std::size_t{1} << 20U);
    const auto scene = readInPieces(text, 1U << 16U);
    ASSERT_TRUE(scene);
    EXPECT_EQ(SoSceneFile::writeText(scene.get()), text);

    text.insert(text.size() - 40, "x");
    std::string problem;
    EXPECT_FALSE(readInPieces(text, 1U << 16U, &problem));
    EXPECT_NE(problem.find("is no value of points, which is a MFVec3f"), std::string::npos) << problem;
    EXPECT_EQ(problem.rfind("4:17 ", 0), 0U) << problem;
}

// What is wrong near the start is refused before the rest was looked at, however long that is.
TEST(ScenePieces, NothingIsReadBehindTheFirstError)
{
    const std::string path = testing::TempDir() + "/sparse" + std::to_string(::getpid()) + ".xsg";
    SoReadError::setHandlerCallback(nullptr, nullptr);
    for (const char* start : {"Separator {\n", "Points {\n    points: [ 1 2 3, ", "Info {\n    text: \"a",
                              "Cube {}\n", "", "Cube \"a", "# for people"}) {
        std::ofstream(path) << Head << start;
        std::filesystem::resize_file(path, 3'000'000'000); // takes no room on the disk
        xsg::SceneReading reading(path);
        EXPECT_TRUE(reading.advance(xsg::SceneReader::Clock::time_point::max()));
        EXPECT_FALSE(reading.takeScene());
        EXPECT_NE(reading.getError().getText().find("a byte 0 stands here"), std::string::npos)
            << reading.getError().getText();
        EXPECT_LT(reading.getProgress(), 0.001) << start;
    }
    SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr);
    std::remove(path.c_str());
}

// They are neither kept, nor passed in one go.
TEST(ScenePieces, EndlessBlanksAndCommentsAreGivenBack)
{
    for (const char filler : {' ', '#'}) {
        std::size_t left = std::size_t{4} << 20U;
        std::string start = Head;
        xsg::SceneReader reader([&](char* to, std::size_t size) {
            if (!start.empty()) {
                std::memcpy(to, start.data(), start.size());
                return std::exchange(start, {}).size();
            }
            const std::size_t count = std::min(size, left);
            std::memset(to, filler, count);
            left -= count;
            return count;
        });
        int turns = 1;
        while (!reader.advance(NoTime))
            ++turns;
        EXPECT_GT(turns, 60) << filler;
        EXPECT_EQ(reader.getProblem().getText(),
                  "the file has no node: a type such as Separator was expected");
        EXPECT_EQ(reader.getLine(), 2);
    }
}

TEST(ScenePieces, OfAReadingThatIsGivenUpComeBackToBeReleased)
{
    const std::string text = mixedText();
    for (int steps = 0; steps < 300; steps += 10) {
        xsg::SceneReader reader(piecesOf(text, 50));
        for (int i = 0; i < steps; ++i)
            reader.advance(NoTime);
        const auto nodes = reader.abandon();
        EXPECT_EQ(nodes.empty(), steps == 0) << steps;
        EXPECT_FALSE(reader.takeScene());
    }
}

TEST(ScenePieces, LongValuesMayBeWrittenByTheCaller)
{
    SoRef<SoSeparator> root(new SoSeparator);
    auto* points = new SoPoints;
    auto* texture = new SoTexture2;
    root->addChild(points);
    root->addChild(texture);
    points->points.setNum(5000);
    points->points.set1Value(0, SbVec3f(1, 2, 3));
    const std::vector<unsigned char> bytes(300 * 300, 7);
    texture->image.setValue(300, 300, 1, bytes.data());
    std::string text;
    int offered = 0;
    xsg::SceneWriter writer([&](const std::string& piece) { text += piece; },
                            [&](const SoField& field) {
                                SbString value;
                                field.get(value);
                                text += value.str();
                                return ++offered == 1; // and the second one is declined, what was added stays
                            });
    root->removeChild(1);
    writer.write(root.get());
    EXPECT_EQ(offered, 1);
    EXPECT_EQ(text, SoSceneFile::writeText(root.get()));
    root->addChild(new SoTexture2);
    static_cast<SoTexture2*>(root->getChild(1))->image.setValue(300, 300, 1, bytes.data());
    text.clear();
    xsg::SceneWriter declined([&](const std::string& piece) { text += piece; },
                              [&](const SoField& /*field*/) { return ++offered < 0; });
    declined.write(root.get());
    EXPECT_EQ(offered, 3);
    EXPECT_EQ(text, SoSceneFile::writeText(root.get()));
}

namespace
{

// Notes what changes below a root.
class Changes : public SoChangeListener
{
public:
    explicit Changes(SoNode* root)
        : m_root(root)
    {
        root->addListener(this);
    }
    virtual ~Changes() { m_root->removeListener(this); }
    void changed(const SoNotification& change) override { fields.push_back(change.field); }
    void subjectDestroyed() override {}
    std::vector<SoField*> fields;

private:
    SoNode* m_root;
};

class SceneRecords : public testing::Test
{
protected:
    SceneRecords()
    {
        root = SoSceneFile::readText(mixedText(), "scene", error);
        std::vector<SoNode*> open{root.get()};
        while (!open.empty()) {
            SoNode* node = open.back();
            open.pop_back();
            nodes.push_back(node);
            if (SoGroup* group = node->asGroup())
                open.insert(open.end(), group->getChildren().begin(), group->getChildren().end());
        }
    }
    ~SceneRecords() override { forgetReferences(root.get()); }

    std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random()) % limit; }
    SoField* anyField()
    {
        const SoNode* node = nodes[below(nodes.size())];
        const SoFieldData* data = node->getFieldData();
        const int count = data->getNumFields();
        return count == 0 ? anyField() : data->getField(node, static_cast<int>(below(count)));
    }
    // What an editor may do to a field.
    void edit()
    {
        static const char* const texts[] = {"0.5",
                                            "7",
                                            "TRUE",
                                            "1 2",
                                            "0.1 0.2 0.3",
                                            "[ 1 2 3, 4 5 6 ]",
                                            "[ ]",
                                            "\"two\\nlines !}\"",
                                            "2 1 3 0xff8000 0x010203",
                                            "0 0 1 0.5"};
        SoField* field = anyField();
        switch (below(8)) {
        case 0:
            field->setIgnored(!field->isIgnored());
            break;
        case 1:
            field->connectFrom(anyField());
            break;
        case 2:
            if (field->isConnected()) {
                field->disconnect();
                field->touch();
            }
            break;
        case 3:
            if (auto* single = dynamic_cast<SoSFNode*>(field))
                single->setValue(leaf());
            if (auto* list = dynamic_cast<SoMFNode*>(field))
                list->set1Value(static_cast<int>(below(3)), SoRef<SoNode>(leaf()));
            break;
        case 4: { // as undoing does
            const std::shared_ptr<SoTypedObject> object(field->getTypeId().createInstance());
            const auto other = std::dynamic_pointer_cast<SoField>(object);
            if (other && !field->isConnected() && field->copyFrom(*other))
                field->setDefault(true);
            break;
        }
        default:
            if (!dynamic_cast<SoSFNode*>(field) && !dynamic_cast<SoMFNode*>(field))
                field->set(texts[below(std::size(texts))]);
        }
    }
    SoNode* leaf()
    {
        SoNode* node = nodes[below(nodes.size())];
        return node->asGroup() || dynamic_cast<SoFieldGallery*>(node) ? nullptr : node;
    }
    static void forgetReferences(SoNode* node)
    {
        if (SoGroup* group = node->asGroup())
            for (SoNode* child : group->getChildren())
                forgetReferences(child);
        if (auto* gallery = dynamic_cast<SoFieldGallery*>(node)) {
            gallery->sfNode.setValue(nullptr);
            gallery->mfNode.setNum(0);
        }
    }

    // As a file keeps it: there, a connected field that still has its default fetches its source's value.
    std::string settled(const SoNode* scene)
    {
        const auto copy = SoSceneFile::readText(SoSceneFile::writeText(scene), "copy", error);
        std::string text = SoSceneFile::writeText(copy.get());
        forgetReferences(copy.get());
        return text;
    }

    std::string error;
    SoRef<SoNode> root;
    std::vector<SoNode*> nodes;
    std::minstd_rand random{15};
};

} // namespace

// The scene as it was written while it changed, and the records of what changed, give the scene as it is.
TEST_F(SceneRecords, CompleteASceneThatChangedWhileItWasWritten)
{
    ASSERT_TRUE(root) << error;
    const char* const steps = std::getenv("SCOPIX_WALK_STEPS");
    const int rounds = steps ? std::max(1, std::atoi(steps) / 100) : 40;
    for (int round = 0; round < rounds; ++round) {
        std::string base;
        Changes changes(root.get());
        xsg::SceneWriter writer([&](const std::string& piece) { base += piece; });
        writer.begin(root.get());
        while (!writer.advance(NoTime)) {
            if (below(3) == 0)
                edit();
        }
        for (int i = 0; i < 20; ++i)
            edit();
        xsg::SceneRecords records;
        for (const SoField* field : changes.fields)
            records.add(writer.recordOf(*field).text);

        xsg::SceneReader reader(base);
        std::vector<SoNode*> read;
        reader.setNodeListener([&](SoNode* node) { read.push_back(node); });
        const SoRef<SoNode> scene = reader.read();
        ASSERT_TRUE(scene) << reader.getProblem().getText() << "\n" << base;
        ASSERT_EQ(records.apply(read), "");
        const std::string is = settled(scene.get());
        forgetReferences(scene.get());
        const std::string wanted = settled(root.get());
        const auto differs = std::mismatch(is.begin(), is.end(), wanted.begin(), wanted.end()).first;
        const auto at = static_cast<std::size_t>(differs - is.begin());
        const std::size_t from = at - std::min<std::size_t>(at, 300);
        ASSERT_EQ(is.substr(from, 400), wanted.substr(from, 400)) << round;
    }
}

TEST_F(SceneRecords, ThatAreDamagedAreRefused)
{
    xsg::SceneWriter writer([](const std::string& /*piece*/) {});
    writer.write(root.get());
    const SoField* connected = root->asGroup()->getChild(1)->asGroup()->getChild(1)->getField("size");
    ASSERT_TRUE(connected && connected->isConnected());
    EXPECT_EQ(writer.recordOf(*connected).text, "@4 size: 5 !ignored <- @1.width");
    SoRef<SoSeparator> elsewhere(new SoSeparator);
    auto* stranger = new SoPoints;
    elsewhere->addChild(stranger);
    EXPECT_EQ(writer.recordOf(stranger->points).text, "") << "of a node that is not in the scene";

    const std::string text = writeInPieces(root.get());
    xsg::SceneReader reader(text);
    std::vector<SoNode*> read;
    reader.setNodeListener([&](SoNode* node) { read.push_back(node); });
    const auto scene = reader.read();
    for (const char* wrong :
         {"", "@", "@4", "@4 size", "@4 size:", "@4 size: many", "@4 height: 5", "@99999 size: 5",
          "@-1 size: 5", "@4 size: 5 !loud", "@4 size: 5 <- @99999.width", "@4 size: 5 <- @1.nothing",
          "@4 size: 5 }", "@4 size: 5\n@4 size: 6", "4 size: 5", "@4 size: 5 <- @4.size"}) {
        xsg::SceneRecords records;
        records.add(wrong);
        EXPECT_FALSE(records.apply(read).empty()) << wrong;
    }
    forgetReferences(scene.get());
}
