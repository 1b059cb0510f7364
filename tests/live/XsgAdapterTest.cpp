// SPDX-License-Identifier: MIT
// Scenes of xsg as an inspector gets them, without a connection between.
#include "live/Probe.h"
#include "support/SoFieldGallery.h"
#include "xsg/fields/FieldSamples.h"

#include <scopix/live/values/LivePacking.h>
#include <scopix/live/xsg/XsgServer.h>

#include <xsg/errors/SoDebugError.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

using namespace scopix::live;

namespace
{

class Xsg : public ::testing::Test
{
protected:
    Xsg() { adapter.attached(true); }
    ~Xsg() override { adapter.attached(false); }
    NodeId know(SoNode* node)
    {
        root->addChild(node);
        adapter.children(adapter.roots().at(0).id, 0, 100);
        return node->getNodeId();
    }

    SoRef<SoSeparator> root{new SoSeparator};
    XsgAdapter adapter{root.get()};
};

const FieldSample* sampleFor(const SoField& field)
{
    const std::vector<FieldSample>& samples = fieldSamples();
    const auto found = std::find_if(samples.begin(), samples.end(), [&](const FieldSample& sample) {
        return field.getTypeId().getName() == SbName(sample.type.c_str());
    });
    return found == samples.end() ? nullptr : &*found;
}

} // namespace

TEST_F(Xsg, CarriesValuesOfEveryTypeThereAndBackToTheLastBit)
{
    SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const NodeId id = know(gallery.get());
    int types = 0;
    for (const PropertyInfo& info : adapter.properties(id)) {
        SoField& field = *gallery->getField(info.name.c_str());
        const FieldSample* sample = sampleFor(field);
        EXPECT_NE(info.kind, ValueKind::Text) << info.name;
        if (!sample || !info.writable)
            continue;
        ++types;
        const std::vector<std::string> texts = sample->goodTexts();
        for (std::size_t i = 0; i < texts.size(); ++i) {
            if (!field.set(texts[i].c_str()))
                continue;
            const std::string text = textOf(field); // which may have a name where the sample has a number
            const std::optional<Value> value = adapter.value(id, info.name);
            ASSERT_TRUE(value) << info.name;
            ASSERT_TRUE(isWellFormed(*value)) << info.name << ", " << value->bytes.size() << " bytes";
            if (info.kind == ValueKind::Image && unpackedList<std::uint32_t>(*value).at(0) == 0)
                continue; // sizes without pixels travel as no picture
            EXPECT_EQ(value->kind, info.kind) << info.name;
            EXPECT_EQ(value->list, info.list) << info.name;
            field.set(texts[(i + 1) % texts.size()].c_str());
            const WriteResult result = adapter.write(id, info.name, *value);
            EXPECT_TRUE(result.taken) << info.name << ": " << result.refusal;
            EXPECT_EQ(result.value, *value) << info.name << ' ' << text;
            EXPECT_EQ(textOf(field), text) << info.name;
        }
    }
    EXPECT_GT(types, 45);
}

TEST_F(Xsg, NamesTheNumbersOfEnumerationsAndMasks)
{
    SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    int enumerations = 0;
    int masks = 0;
    for (const PropertyInfo& info : adapter.properties(know(gallery.get()))) {
        enumerations += info.meaning == Meaning::Enumeration && !info.names.empty() ? 1 : 0;
        masks += info.meaning == Meaning::Mask && !info.names.empty() ? 1 : 0;
    }
    EXPECT_GE(enumerations, 2);
    EXPECT_GE(masks, 2);
}

TEST_F(Xsg, TellsOfChangesOfWatchedNodesAndOfNoOthers)
{
    SoRef<SoCube> watched(new SoCube);
    SoRef<SoCube> other(new SoCube);
    const NodeId id = know(watched.get());
    know(other.get());
    adapter.watch(id, true);
    adapter.watch(root->getNodeId(), false);
    watched->width.setValue(3);
    watched->width.setValue(4);
    other->width.setValue(5);
    AdapterChanges changes = adapter.takeChanges();
    ASSERT_EQ(changes.properties.size(), 1U);
    EXPECT_EQ(changes.properties[0].node, id);
    EXPECT_EQ(changes.properties[0].name, "width");
    EXPECT_TRUE(changes.children.empty());
    other->setName("Renamed");
    EXPECT_EQ(adapter.takeChanges().children, std::vector<NodeId>{root->getNodeId()})
        << "its name is told by its group";
    root->removeChild(0);
    EXPECT_EQ(adapter.takeChanges().children, std::vector<NodeId>{root->getNodeId()});
    adapter.unwatch(root->getNodeId());
    root->removeAllChildren();
    changes = adapter.takeChanges();
    EXPECT_TRUE(changes.children.empty());
    EXPECT_TRUE(changes.ended.empty());
    watched = SoRef<SoCube>();
    EXPECT_EQ(adapter.takeChanges().ended, std::vector<NodeId>{id});
    EXPECT_FALSE(adapter.value(id, "width"));
    EXPECT_FALSE(adapter.node(id));
    adapter.watch(id, true);
    EXPECT_EQ(adapter.takeChanges().ended, std::vector<NodeId>{id}) << "who watches too late hears so";
}

TEST_F(Xsg, NamesAllPlacesOfASharedNode)
{
    SoRef<SoCube> cube(new SoCube);
    for (int i = 0; i < 3; ++i) {
        auto* group = new SoSeparator;
        group->addChild(cube.get());
        adapter.children(know(group), 0, 10);
    }
    EXPECT_EQ(adapter.node(cube->getNodeId()).value_or(NodeInfo()).parentCount, 3U);
    EXPECT_EQ(adapter.pathsTo(cube->getNodeId(), 10).size(), 3U);
    EXPECT_EQ(adapter.pathsTo(cube->getNodeId(), 2).size(), 2U);
}

TEST_F(Xsg, PassesOnWhatTheSceneGraphPostsAndLeavesItToTheProgramToo)
{
    adapter.attached(false);
    static int heard = 0;
    SoErrorCB* const former = SoDebugError::getHandlerCallback();
    SoDebugError::setHandlerCallback([](const SoError*, void*) { ++heard; }, nullptr);
    adapter.attached(true);
    SoDebugError::postWarning("test", "Something deserves attention.");
    const std::vector<Notice> notices = adapter.takeNotices();
    ASSERT_EQ(notices.size(), 1U);
    EXPECT_EQ(notices[0].level, NoticeLevel::Warning);
    EXPECT_NE(notices[0].text.find("Something deserves attention."), std::string::npos);
    EXPECT_EQ(heard, 1);
    adapter.attached(false);
    SoDebugError::postWarning("test", "Nobody is attached.");
    EXPECT_EQ(heard, 2);
    EXPECT_TRUE(adapter.takeNotices().empty());
    SoDebugError::setHandlerCallback(former, nullptr);
    adapter.attached(true);
}

TEST_F(Xsg, CopiesNodesWithTheirValues)
{
    SoRef<SoCube> cube(new SoCube);
    cube->width.setValue(7);
    const NodeId id = know(cube.get());
    const StructureResult copied = adapter.copy(root->getNodeId(), 1, id);
    ASSERT_TRUE(copied.done) << copied.refusal;
    const auto* copy = dynamic_cast<const SoCube*>(root->getChild(1));
    ASSERT_TRUE(copy);
    EXPECT_NE(copy, cube.get());
    EXPECT_EQ(copy->getNodeId(), copied.node);
    EXPECT_EQ(copy->width.getValue(), 7);
    EXPECT_FALSE(adapter.copy(root->getNodeId(), 0, 123456789).done);
}

TEST_F(Xsg, KeepsNothingAliveOnceNobodyIsAttached)
{
    SoRef<SoCube> cube(new SoCube);
    adapter.watch(know(cube.get()), true);
    EXPECT_TRUE(adapter.remove(root->getNodeId(), 0).done);
    EXPECT_EQ(cube->getRefCount(), 2);
    adapter.attached(false);
    EXPECT_EQ(cube->getRefCount(), 1);
    EXPECT_FALSE(adapter.node(cube->getNodeId()));
}

TEST(XsgServer, AnswersFromTheSensorQueue)
{
    const OwnRuntimeFolder folder;
    SoRef<SoSeparator> root(new SoSeparator);
    root->setName("Lent");
    const std::unique_ptr<void, void (*)(void*)> loaded(scopixLiveBegin(root.get(), "loaded"), scopixLiveEnd);
    const std::vector<Program> programs = ownPrograms();
    ASSERT_EQ(programs.size(), 1U);
    EXPECT_EQ(programs[0].name, "loaded");
    Probe probe([] { SoSensorQueue::getInstance().process(); });
    ASSERT_EQ(probe.client.connect(programs[0].socketPath), "");
    EXPECT_EQ(probe.roots().at(0).name, "Lent");
}
