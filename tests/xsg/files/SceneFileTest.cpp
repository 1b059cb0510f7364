// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>
#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoInfo.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoScreenText.h>
#include <xsg/nodes/shapes/SoSphere.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

const std::string Head = "#Xsg V1.0 utf8\n";

class SceneFile : public testing::Test
{
protected:
    SceneFile()
    {
        SoReadError::setHandlerCallback(
            [](const SoError* posted, void* data) {
                static_cast<SceneFile*>(data)->posted.push_back(posted->getDebugString().str());
            },
            this);
    }
    ~SceneFile() override { SoReadError::setHandlerCallback(SoError::defaultHandler, nullptr); }

    SoRef<SoNode> read(const std::string& text) { return SoSceneFile::readText(text, "scene.xsg", error); }
    template <class Node>
    Node* child(const SoRef<SoNode>& root, int index)
    {
        return dynamic_cast<Node*>(root->asGroup()->getChild(index));
    }

    std::string error;
    std::vector<std::string> posted;
};

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

} // namespace

TEST_F(SceneFile, ReadsNodesNamesFieldsAndMarks)
{
    const auto root = read(Head + R"(# for people
Separator "whole \"scene\"" { # here too
    Material {
        diffuseColor: [ 1 0 0, 0 1 0 ]
        transparency: 0.5 !ignored
        shininess: !ignored }
    Sphere {radius:2}
}
)");
    ASSERT_TRUE(root) << error;
    EXPECT_STREQ(root->getName().getString(), "whole \"scene\"");
    auto* material = child<SoMaterial>(root, 0);
    ASSERT_TRUE(material);
    EXPECT_EQ(material->diffuseColor.getNum(), 2);
    EXPECT_EQ(material->transparency.getValue(), 0.5F);
    EXPECT_TRUE(material->transparency.isIgnored());
    EXPECT_TRUE(material->shininess.isIgnored());
    EXPECT_TRUE(material->shininess.isDefault());
    EXPECT_EQ(child<SoSphere>(root, 1)->radius.getValue(), 2.0F);
    EXPECT_TRUE(posted.empty());
}

TEST_F(SceneFile, WritesWhatItReads)
{
    const std::string text = Head + R"(Separator "top" {
    Material @1 {
        transparency: 0.25
    }
    Group {
        @1
        Cube {}
    }
}
)";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(root->asGroup()->getChild(0), child<SoGroup>(root, 1)->getChild(0));
    EXPECT_EQ(SoSceneFile::writeText(root.get()), text);
}

TEST_F(SceneFile, KeepsEveryBitOfEveryNodesFields)
{
    const char* const texts[] = {"0.1",
                                 "-0",
                                 "nan",
                                 "-inf",
                                 "1e-45",
                                 "7",
                                 "TRUE",
                                 "0.1 0.2 0.3",
                                 "1 2",
                                 "0.5 0.25 0.125 1",
                                 "[ 0.1 0.2 0.3, -1 -2 -3 ]",
                                 "[ 1, -1, 3 ]",
                                 "[ ]",
                                 "[ 0.1 0.7, 2 3 ]",
                                 "1 2 3 4 5 6",
                                 "2 1 3 0xff8000 0x010203",
                                 "LINES",
                                 "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16.5",
                                 "[ 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 ]",
                                 "\"a # b } ] ! < \\\" \\\\ \xC3\xA4\"",
                                 "[ \"a ]\", \"\", \"two\\nlines\" ]"};
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance() || type == SoUnknownNode::getClassTypeId())
            continue;
        const SoRef<SoNode> node(static_cast<SoNode*>(type.createInstance()));
        const SoFieldData* data = node->getFieldData();
        for (const char* text : texts) {
            for (int i = 0; i < data->getNumFields(); ++i)
                data->getField(node.get(), i)->set(text);
            const auto copy = read(SoSceneFile::writeText(node.get()));
            ASSERT_TRUE(copy) << error;
            ASSERT_EQ(copy->getTypeId(), type);
            for (int i = 0; i < data->getNumFields(); ++i) {
                const SoField* field = data->getField(node.get(), i);
                const SoField* read = data->getField(copy.get(), i);
                EXPECT_TRUE(field->isSame(*read))
                    << type.getName().getString() << '.' << field->getName().getString() << ": "
                    << textOf(*field) << " became " << textOf(*read);
                EXPECT_EQ(field->isDefault(), read->isDefault());
            }
        }
    }
}

TEST_F(SceneFile, KeepsTheMarkOfAnIgnoredFieldWhateverItsValue)
{
    const SoRef<SoCube> cube(new SoCube);
    cube->width.setIgnored(true);
    cube->height.setValue(3);
    cube->height.setIgnored(true);
    const auto copy = read(SoSceneFile::writeText(cube.get()));
    ASSERT_TRUE(copy) << error;
    const auto& copied = dynamic_cast<const SoCube&>(*copy);
    EXPECT_TRUE(copied.width.isIgnored());
    EXPECT_TRUE(copied.width.isDefault());
    EXPECT_TRUE(copied.height.isIgnored());
    EXPECT_EQ(copied.height.getValue(), 3.0F);
    EXPECT_FALSE(copied.depth.isIgnored());
}

TEST_F(SceneFile, KeepsConnectionsAlsoToWhatComesLater)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* sphere = new SoSphere;
    auto* cube = new SoCube;
    root->addChild(sphere);
    root->addChild(cube);
    ASSERT_TRUE(sphere->radius.connectFrom(&cube->width));
    cube->width.setValue(7);
    const auto copy = read(SoSceneFile::writeText(root.get()));
    ASSERT_TRUE(copy) << error;
    auto* copiedSphere = child<SoSphere>(copy, 0);
    auto* copiedCube = child<SoCube>(copy, 1);
    EXPECT_EQ(copiedSphere->radius.getConnectedField(), &copiedCube->width);
    EXPECT_EQ(copiedSphere->radius.getValue(), 7.0F);
    copiedCube->width.setValue(9);
    EXPECT_EQ(copiedSphere->radius.getValue(), 9.0F);
}

TEST_F(SceneFile, AConnectedFieldThatWasWrittenKeepsItsValue)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* first = new SoCube;
    auto* second = new SoCube;
    auto* third = new SoCube;
    for (SoCube* cube : {third, second, first})
        root->addChild(cube);
    second->width.connectFrom(&first->width);
    third->width.connectFrom(&second->width);
    first->width.setValue(1);
    second->width.setValue(2);
    third->width.setValue(3);
    const auto copy = read(SoSceneFile::writeText(root.get()));
    ASSERT_TRUE(copy) << error;
    EXPECT_EQ(child<SoCube>(copy, 0)->width.getValue(), 3.0F);
    EXPECT_EQ(child<SoCube>(copy, 1)->width.getValue(), 2.0F);
    EXPECT_EQ(child<SoCube>(copy, 2)->width.getValue(), 1.0F);
}

TEST_F(SceneFile, AConnectionFromOutsideOfTheSceneLeavesItsValue)
{
    const SoRef<SoCube> outside(new SoCube);
    const SoRef<SoSphere> sphere(new SoSphere);
    sphere->radius.connectFrom(&outside->width);
    const auto copy = read(SoSceneFile::writeText(sphere.get()));
    ASSERT_TRUE(copy) << error;
    EXPECT_EQ(dynamic_cast<SoSphere&>(*copy).radius.getValue(), 2.0F);
}

TEST_F(SceneFile, KeepsReferencesToNodesAlsoToWhatComesLater)
{
    const SoRef<SoCube> outside(new SoCube);
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* gallery = new SoFieldGallery;
    auto* cube = new SoCube;
    auto* sphere = new SoSphere;
    sphere->setName("@1");
    for (SoNode* node : std::initializer_list<SoNode*>{cube, gallery, sphere})
        root->addChild(node);
    gallery->sfNode.setValue(SoRef<SoNode>(sphere));
    gallery->mfNode.setValues(std::vector<SoRef<SoNode>>{
        SoRef<SoNode>(cube), nullptr, SoRef<SoNode>(outside.get()), SoRef<SoNode>(sphere)});
    const std::string text = SoSceneFile::writeText(root.get());
    const auto copy = read(text);
    ASSERT_TRUE(copy) << error;
    auto* copied = child<SoFieldGallery>(copy, 1);
    const SoGroup* group = copy->asGroup();
    EXPECT_EQ(copied->sfNode.getNode(), group->getChild(2));
    ASSERT_EQ(copied->mfNode.getNum(), 4);
    EXPECT_EQ(copied->mfNode[0].get(), group->getChild(0));
    EXPECT_EQ(copied->mfNode[1].get(), nullptr);
    EXPECT_EQ(copied->mfNode[2].get(), nullptr) << "what is not in the scene is not in its file";
    EXPECT_EQ(copied->mfNode[3].get(), group->getChild(2));
    EXPECT_EQ(SoSceneFile::writeText(copy.get()), text);
}

TEST_F(SceneFile, ReferencesByNameFindWhatComesLater)
{
    const auto root = read(Head + R"(Group {
    FieldGallery {
        sfNode: "the far end"
        mfNode: [ "the far end", NULL ]
    }
    Cube "the far end" {}
})");
    ASSERT_TRUE(root) << error;
    auto* gallery = child<SoFieldGallery>(root, 0);
    EXPECT_EQ(gallery->sfNode.getNode(), root->asGroup()->getChild(1));
    EXPECT_EQ(gallery->mfNode[0].get(), root->asGroup()->getChild(1));
}

// A node that refers to itself lives for ever; one whose file is refused must not.
TEST_F(SceneFile, ARefusedSceneDoesNotKeepItselfAlive)
{
    EXPECT_FALSE(
        read(Head + "FieldGallery \"lasting\" @1 { mfNode: [ @1 ] sfFloat: <- @1.none\n sfNode: @1\n}"));
    EXPECT_NE(error.find("there is no field @1.none"), std::string::npos) << error;
    EXPECT_EQ(SoFieldContainer::getByName("lasting"), nullptr);
}

TEST_F(SceneFile, AFieldWithoutAValueLeavesTheNextLineAlone)
{
    const std::string text = Head + R"(Separator {
    Cube {
        width: !ignored
        height: 3
    }
    Wormhole {
        mouth:
        depth: 4
    }
}
)";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(child<SoCube>(root, 0)->height.getValue(), 3.0F);
    const std::string written = SoSceneFile::writeText(root.get());
    const auto again = read(written);
    ASSERT_TRUE(again) << error;
    EXPECT_EQ(SoSceneFile::writeText(again.get()), written);
    EXPECT_TRUE(read(Head + "Cube {\n width:\n height: 5\n}")) << error;
}

TEST_F(SceneFile, NodesOfUnknownTypesAreKept)
{
    const std::string text = Head + R"(Separator {
    Wormhole "left" {
        mouth: 1 2 3 !ignored
        notes: [ "a }", "b" ]
        Cube {
            width: 3
        }
    }
}
)";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    auto* unknown = child<SoUnknownNode>(root, 0);
    ASSERT_TRUE(unknown);
    EXPECT_EQ(unknown->getTypeName(), SbName("Wormhole"));
    EXPECT_EQ(unknown->getNumChildren(), 1);
    EXPECT_EQ(SoSceneFile::writeText(root.get()), text);
}

TEST_F(SceneFile, ConnectionsFromAndToNodesOfUnknownTypesAreKept)
{
    const std::string text = Head + R"(Separator {
    Cube @1 {
        width: 7 <- @2.mouth
    }
    Wormhole @2 {
        mouth: 7
        depth: 4 !ignored <- @1.height
        length: 5 <- @3.reach
    }
    Wormhole @3 {
        reach: 5
    }
}
)";
    const auto root = read(text);
    ASSERT_TRUE(root) << error;
    EXPECT_EQ(SoSceneFile::writeText(root.get()), text);
    auto* cube = child<SoCube>(root, 0);
    auto* unknown = child<SoUnknownNode>(root, 1);
    ASSERT_TRUE(unknown->getField("mouth")->set(" 9 "));
    EXPECT_EQ(cube->width.getValue(), 9.0F);
    cube->height.setValue(3);
    EXPECT_EQ(textOf(*unknown->getField("depth")), "4") << "how it would take the value is not known";
}

TEST_F(SceneFile, AFieldOfAnUnknownNodeRefusesWhatAFileCouldNotHave)
{
    const auto root = read(Head + "Wormhole { mouth: 7\n }");
    ASSERT_TRUE(root) << error;
    SoField* field = root->getField("mouth");
    ASSERT_TRUE(field);
    for (const char* bad : {"", " ", "7\n8", "\"a", "[ 1", "[ 1 ] 2", "7 }", "#7", "7 !ignored", "<- @1.x"}) {
        EXPECT_FALSE(field->set(bad)) << bad;
        EXPECT_EQ(textOf(*field), "7");
    }
    for (const char* good : {"x", "1 2 3", "\"} # \\\" \"", "[ \"]\", 2\n]", "LEFT | TOP"}) {
        ASSERT_TRUE(field->set(good)) << good;
        const auto copy = read(SoSceneFile::writeText(root.get()));
        ASSERT_TRUE(copy) << error;
        EXPECT_TRUE(copy->getField("mouth")->isSame(*field)) << good;
    }
}

struct Wrong {
    const char* text; // after the first line
    const char* place;
    const char* says;
};

class SceneFileError : public SceneFile, public testing::WithParamInterface<Wrong>
{
};

TEST(SceneFilePipe, IsRefusedWithoutWaiting)
{
    const std::string path = testing::TempDir() + "scene.xsg." + std::to_string(getpid());
    std::remove(path.c_str());
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::string error;
    EXPECT_FALSE(SoSceneFile::read(path, error));
    EXPECT_NE(error.find("not a file"), std::string::npos) << error;
    std::remove(path.c_str());
}

TEST_P(SceneFileError, NamesFileLineColumnAndWhatWasExpected)
{
    EXPECT_FALSE(read(Head + GetParam().text));
    EXPECT_EQ(error.rfind(GetParam().place, 0), 0U) << error;
    EXPECT_NE(error.find(GetParam().says), std::string::npos) << error;
    EXPECT_EQ(error.find('\n'), std::string::npos);
    EXPECT_EQ(posted, std::vector<std::string>{error});
}

INSTANTIATE_TEST_SUITE_P(
    All, SceneFileError,
    testing::Values(
        Wrong{"", "scene.xsg:2: Column 1:", "the file has no node"},
        Wrong{"Cube {", "scene.xsg:2: Column 7:", "\"}\" was expected to close the Cube"},
        Wrong{"Cube\n", "scene.xsg:3: Column 1:", "\"{\" was expected after \"Cube\""},
        Wrong{"}", "scene.xsg:2: Column 1:", "closes nothing"},
        Wrong{"Cube {} Cube {}", "scene.xsg:2: Column 9:", "its end was expected"},
        Wrong{"Cube {\n  width: many\n}",
              "scene.xsg:3: Column 10:", "\"many\" is no value of width, which is a SFFloat"},
        Wrong{"Cube { width: 1 height: 2 }", "scene.xsg:2: Column 15:",
              "\"1 height: 2\" is no value of width, which is a SFFloat; each field has a line of its own"},
        Wrong{"Cube {\n  breadth: 1\n}", "scene.xsg:3: Column 3:", "a Cube has no field \"breadth\""},
        Wrong{"Cube { Sphere {} }", "scene.xsg:2: Column 8:", "a Cube has no children"},
        Wrong{"Cube \"name {}", "scene.xsg:2: Column 6:", "has no end"},
        Wrong{"width: 1", "scene.xsg:2: Column 1:", "a field stands within a node"},
        Wrong{"Separator { @9 }", "scene.xsg:2: Column 13:", "the label @9 is not that of a node"},
        Wrong{"Separator @1 { @1 }", "scene.xsg:2: Column 16:", "complete"},
        Wrong{"Separator { Cube @1 {} Cube @1 {} }", "scene.xsg:2: Column 33:", "already another node's"},
        Wrong{"Cube @ {}", "scene.xsg:2: Column 7:", "a label was expected"},
        Wrong{"Points { points: [ 1 2 3 }", "scene.xsg:2: Column 18:", "has no \"]\""},
        Wrong{"Info { text: \"abc\n}", "scene.xsg:2: Column 14:", "has no end"},
        Wrong{"Cube { width: 1 !unheard }", "scene.xsg:2: Column 17:", "\"!ignored\" was expected"},
        Wrong{"Cube { width: <- 5 }", "scene.xsg:2: Column 15:", "\"<- @label.field\" was expected"},
        Wrong{"Cube { width: <- @1.width }", "scene.xsg:2: Column 15:", "there is no field @1.width"},
        Wrong{"Cube @1 { width: <- @1.width }", "scene.xsg:2: Column 18:", "cannot be connected"},
        Wrong{"FieldGallery { sfNode: @7\n}",
              "scene.xsg:2: Column 24:", "\"@7\" is no value of sfNode, which is a SFNode"},
        Wrong{"FieldGallery @1 { mfNode: [ @1, x+y ] }",
              "scene.xsg:2: Column 27:", "\"[ @1, x+y ]\" is no value of mfNode, which is a MFNode"},
        Wrong{"Group { FieldGallery { sfNode: @1 @1\n } Cube @1 {} }",
              "scene.xsg:2: Column 32:", "\"@1 @1\" is no value of sfNode"},
        Wrong{"Separator { ) }", "scene.xsg:2: Column 13:", "a field, a node or \"}\" was expected"}));

TEST_F(SceneFile, AnotherFirstLineIsNoSceneFile)
{
    for (const char* text : {"", "#Xsg V2.0 utf8\nCube {}", "glTF\x02", "Cube {}"}) {
        EXPECT_FALSE(read(text));
        EXPECT_NE(error.find("its first line must be \"#Xsg V1.0 utf8\""), std::string::npos) << error;
    }
    EXPECT_TRUE(read("#Xsg V1.0 utf8\r\nCube {\r\n  width: 3\r\n}\r\n")) << error;
}

TEST_F(SceneFile, ALargeFileThatIsNoSceneTakesNoMemory)
{
    const std::string path = testing::TempDir() + "/large" + std::to_string(::getpid()) + ".xsg";
    const auto refusalOf = [&](const std::string& start, std::uintmax_t size) {
        std::ofstream(path) << start;
        std::filesystem::resize_file(path, size); // takes no room on the disk
        EXPECT_FALSE(SoSceneFile::read(path, error));
        return error.substr(path.size());
    };
    EXPECT_EQ(refusalOf("glTF", 4'000'000'000),
              ":1: Column 1: this is no scene file: its first line must be \"#Xsg V1.0 utf8\".");
    EXPECT_EQ(refusalOf(Head, 4'400'000'000'000),
              ": A scene file of at most 4 GiB was expected, but this one has 4400000000000 bytes.");
    std::remove(path.c_str());
}

TEST_F(SceneFile, CutAnywhereItGivesAnErrorOrAScene)
{
    const SoRef<SoSeparator> root(new SoSeparator);
    auto* points = new SoPoints;
    points->setName("corners \"here\"");
    for (int i = 0; i < 20; ++i)
        points->points.set1Value(i, {static_cast<float>(i) * 0.1F, 1, 2});
    auto* text = new SoScreenText;
    text->lines.set1Value(0, "\\ quoted \"");
    auto* sphere = new SoSphere;
    sphere->radius.connectFrom(&text->size);
    sphere->radius.setIgnored(true);
    for (SoNode* node : std::initializer_list<SoNode*>{points, text, sphere, points})
        root->addChild(node);
    const std::string whole = SoSceneFile::writeText(root.get());
    for (std::size_t length = 0; length + 2 < whole.size(); ++length) {
        EXPECT_FALSE(read(whole.substr(0, length)));
        EXPECT_FALSE(error.empty());
    }
    EXPECT_TRUE(read(whole));
}

TEST_F(SceneFile, TheShowcaseComesBackAsItWas)
{
    const auto scene = SoSceneFile::read(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg", error);
    ASSERT_TRUE(scene) << error;
    const std::string once = SoSceneFile::writeText(scene.get());
    const auto again = read(once);
    ASSERT_TRUE(again) << error;
    EXPECT_EQ(SoSceneFile::writeText(again.get()), once);
}

// Whatever happens to a file, it gives a scene or an error, and a scene can be written and measured.
TEST_F(SceneFile, DamagedInAnyWayItGivesAnErrorOrAScene)
{
    std::ifstream file(SCOPIX_SOURCE_DIR "/data/scenes/showcase.xsg", std::ios::binary);
    const std::string whole((std::istreambuf_iterator<char>(file)), {});
    ASSERT_GT(whole.size(), 1000U);
    std::minstd_rand random(20); // the same damages in every run
    const auto below = [&](std::size_t limit) { return static_cast<std::size_t>(random()) % limit; };
    const std::string spice = "{}[]\"@<-!:.#\\ 0123456789eE+-xnaif\n\x80\xff";
    for (int round = 0; round < 500; ++round) {
        std::string text = whole;
        for (std::size_t damages = 1 + below(4); damages > 0; --damages) {
            const std::size_t at = Head.size() + below(text.size() - Head.size());
            const std::size_t length = std::min(below(40), text.size() - at);
            if (below(3) == 0)
                text.erase(at, length);
            else if (below(2) == 0)
                text.insert(at, text.substr(Head.size() + below(text.size() - Head.size() - 1), length));
            else
                text[at] = spice[below(spice.size())];
        }
        posted.clear();
        const auto scene = read(text);
        ASSERT_EQ(posted.size(), scene ? 0U : 1U) << round;
        if (!scene)
            continue;
        SoBoundingBoxAction().getBox(scene.get());
        const auto again = read(SoSceneFile::writeText(scene.get()));
        EXPECT_TRUE(again) << round << ": " << error;
    }
}

TEST_F(SceneFile, WritesAFileAsAWholeOrNotAtAll)
{
    const std::string folder = testing::TempDir() + "/scenes" + std::to_string(::getpid());
    std::filesystem::create_directory(folder);
    const std::string path = folder + "/a.xsg";
    const SoRef<SoCube> cube(new SoCube);
    cube->width.setValue(5);
    ASSERT_TRUE(SoSceneFile::write(cube.get(), path, error)) << error;
    const auto copy = SoSceneFile::read(path, error);
    ASSERT_TRUE(copy) << error;
    EXPECT_EQ(dynamic_cast<SoCube&>(*copy).width.getValue(), 5.0F);
    EXPECT_FALSE(SoSceneFile::write(cube.get(), folder, error));
    EXPECT_NE(error.find(folder), std::string::npos);
    EXPECT_FALSE(SoSceneFile::write(cube.get(), folder + "/missing/a.xsg", error));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
    std::filesystem::remove_all(folder);
}

TEST_F(SceneFile, RefusesWhatIsNoFileWithASentence)
{
    EXPECT_FALSE(SoSceneFile::read("/no/such/scene.xsg", error));
    EXPECT_NE(error.find("/no/such/scene.xsg: The file cannot be read"), std::string::npos) << error;
    EXPECT_FALSE(SoSceneFile::read(testing::TempDir(), error));
    EXPECT_NE(error.find("this is not a file"), std::string::npos) << error;
    EXPECT_EQ(posted.size(), 2U);
}
