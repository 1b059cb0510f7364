// SPDX-License-Identifier: MIT
// Fields whose values are references to nodes.
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>

namespace
{

std::string textOf(const SoField& field)
{
    SbString text;
    field.get(text);
    return text.str();
}

} // namespace

TEST(NodeFields, WriteTheirNodeByItsName)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const SoRef<SoFieldGallery> other(new SoFieldGallery);
    other->setName("Table");
    gallery->sfNode.setValue(other.get());
    EXPECT_EQ(textOf(gallery->sfNode), "Table");
    gallery->sfNode.setValue(nullptr);
    EXPECT_EQ(textOf(gallery->sfNode), "NULL");
    ASSERT_TRUE(gallery->sfNode.set("Table"));
    EXPECT_EQ(gallery->sfNode.getNode(), other.get());
    other->setName("NULL");
    EXPECT_EQ(textOf(gallery->sfNode), "\"NULL\"");
    ASSERT_TRUE(gallery->mfNode.set("[ \"NULL\", NULL ]"));
    EXPECT_EQ(gallery->mfNode[0].get(), other.get());
    EXPECT_EQ(gallery->mfNode[1].get(), nullptr);
}

TEST(NodeFields, DistinguishNodesWithoutNameOrWithTheSame)
{
    const SoRef<SoFieldGallery> a(new SoFieldGallery);
    const SoRef<SoFieldGallery> b(new SoFieldGallery);
    SoSFNode field;
    for (const char* name : {"", "Twin"}) {
        a->setName(name);
        b->setName(name);
        for (SoFieldGallery* node : {a.get(), b.get()}) {
            field.setValue(node);
            const std::string text = textOf(field);
            field.setValue(nullptr);
            ASSERT_TRUE(field.set(text)) << text;
            EXPECT_EQ(field.getNode(), node) << text;
        }
    }
}

TEST(NodeFields, KeepTheirNodeAliveAndForgetNamesOfDestroyedOnes)
{
    SoSFNode field;
    auto* node = new SoFieldGallery;
    node->setName("Kept");
    field.setValue(node);
    EXPECT_EQ(node->getRefCount(), 1);
    const SoRef<SoNode> keep(node);
    EXPECT_TRUE(field.set("NULL"));
    EXPECT_EQ(node->getRefCount(), 1);
    EXPECT_TRUE(field.set("Kept"));
    EXPECT_TRUE(field.set("NULL"));
    EXPECT_EQ(SoFieldContainer::getByName("Kept"), node);
    {
        const SoRef<SoFieldGallery> brief(new SoFieldGallery);
        brief->setName("Brief");
        EXPECT_EQ(SoFieldContainer::getByName("Brief"), brief.get());
    }
    EXPECT_EQ(SoFieldContainer::getByName("Brief"), nullptr);
    EXPECT_FALSE(field.set("Brief"));
}

TEST(NodeFields, ALongChainOfReferencesIsDestroyedWithoutRecursion)
{
    SoRef<SoFieldGallery> last(new SoFieldGallery);
    for (int i = 0; i < 20'000; ++i) {
        SoRef<SoFieldGallery> next(new SoFieldGallery);
        next->sfNode.setValue(last.get());
        last = next;
    }
    last = nullptr;
}
