// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <xsg/core/ChangeListener.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoInfo.h>
#include <xsg/nodes/base/SoUnknownNode.h>

#include <vector>

namespace
{

SoRef<SoUnknownNode> nodeOf(int fields)
{
    SoRef<SoUnknownNode> node(new SoUnknownNode);
    for (int i = 0; i < fields; ++i)
        node->addField(("field" + std::to_string(i)).c_str());
    return node;
}

void expectAccessByIndex(const SoUnknownNode* node, int count)
{
    const SoFieldData* data = node->getFieldData();
    ASSERT_EQ(data->getNumFields(), count);
    const SoField* walked = data->getField(node, 0);
    for (int i = 0; i < count; ++i) {
        const SoField* field = data->getField(node, i);
        ASSERT_EQ(field, walked) << i;
        ASSERT_EQ(field->getName(), data->getFieldName(i)) << i;
        ASSERT_EQ(data->getIndex(node, field), i);
        walked = data->getNext(walked);
    }
    for (const int outside : {-1, count}) {
        EXPECT_EQ(data->getField(node, outside), nullptr);
        EXPECT_EQ(data->getFieldName(outside), SbName());
    }
    EXPECT_EQ(data->getIndex(node, nullptr), -1);
}

struct Listener final : xsg::ChangeListener {
    explicit Listener(SoFieldContainer* subject)
        : container(subject)
    {
        container->addListener(this);
    }
    void changed(const SoNotification& change) override { fields.push_back(change.field); }
    void subjectDestroyed() override
    {
        container->removeListener(this);
        container = nullptr;
    }
    SoFieldContainer* container;
    std::vector<const SoField*> fields;
};

} // namespace

TEST(Container, FieldsAreFoundByIndexHoweverManyThereAre)
{
    for (const int count : {0, 1, 16, 17, 1000})
        expectAccessByIndex(nodeOf(count).get(), count);
}

TEST(Container, AFieldThatIsAddedLaterIsFoundByIndexToo)
{
    const auto node = nodeOf(100);
    expectAccessByIndex(node.get(), 100);
    node->addField("another");
    expectAccessByIndex(node.get(), 101);
}

TEST(Container, AFieldOfAnotherContainerHasNoIndex)
{
    const auto node = nodeOf(100);
    const auto other = nodeOf(100);
    expectAccessByIndex(node.get(), 100);
    expectAccessByIndex(other.get(), 100);
    const SoField* foreign = other->getFieldData()->getField(other.get(), 5);
    EXPECT_EQ(node->getFieldData()->getIndex(node.get(), foreign), -1);
    const SoSFFloat alone;
    EXPECT_EQ(node->getFieldData()->getIndex(node.get(), &alone), -1);
}

TEST(Container, AListenerIsCalledForEachChangeAndBeforeTheEnd)
{
    SoRef<SoInfo> info(new SoInfo);
    Listener listener(info.get());
    info->text.set("\"first\"");
    info->setName("named");
    EXPECT_EQ(listener.fields, (std::vector<const SoField*>{&info->text, nullptr}));
    info = nullptr;
    EXPECT_EQ(listener.container, nullptr);
}

TEST(Reference, ReleaseHandsTheObjectOnWithoutAReference)
{
    SoRef<SoInfo> first(new SoInfo);
    SoInfo* released = first.release();
    EXPECT_FALSE(first);
    EXPECT_EQ(released->getRefCount(), 0);
    const SoRef<SoInfo> second(released);
    EXPECT_EQ(released->getRefCount(), 1);
    EXPECT_EQ(SoRef<SoInfo>().release(), nullptr);
}
