// SPDX-License-Identifier: MIT
// Holds docs/fields.md against the registered field types.
#include <gtest/gtest.h>

#include <xsg/nodes/base/SoFieldGallery.h>

#include "FieldSamples.h"

#include <fstream>
#include <map>

namespace
{

// The example of each type that the page's tables list: its last column, without the back quotes.
std::map<std::string, std::string> examples()
{
    std::map<std::string, std::string> found;
    std::ifstream in(SCOPIX_SOURCE_DIR "/docs/fields.md");
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("| SF", 0) != 0 && line.rfind("| MF", 0) != 0)
            continue;
        const std::string type = line.substr(2, line.find(' ', 2) - 2);
        const std::size_t end = line.rfind('`');
        std::string text = line.substr(0, end);
        text = text.substr(text.rfind('`') + 1);
        for (std::size_t at = 0; (at = text.find("\\|", at)) != std::string::npos;)
            text.erase(at, 1);
        EXPECT_TRUE(found.emplace(type, text).second) << type << " stands twice";
    }
    return found;
}

} // namespace

TEST(FieldsPage, HasEveryTypeWithAnExampleThatTheGalleryShows)
{
    auto page = examples();
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const SoFieldData* data = gallery->getFieldData();
    for (int i = 0; i < data->getNumFields(); ++i) {
        SoField* field = data->getField(gallery.get(), i);
        const std::string type = field->getTypeId().getName().getString();
        ASSERT_EQ(page.count(type), 1U) << "docs/fields.md has no " << type;
        EXPECT_TRUE(field->isDefault()) << type;
        EXPECT_EQ(textOf(*field), page[type]) << type;
        EXPECT_TRUE(field->set(page[type])) << type;
        EXPECT_EQ(textOf(*field), page[type]) << type;
        page.erase(type);
    }
    for (const auto& [type, text] : page)
        ADD_FAILURE() << "docs/fields.md tells of a type that is not in the gallery: " << type;
}

TEST(FieldGallery, HasOneFieldOfEveryType)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const SoFieldData* data = gallery->getFieldData();
    EXPECT_EQ(static_cast<std::size_t>(data->getNumFields()), fieldSamples().size());
    for (const FieldSample& sample : fieldSamples()) {
        std::string name = sample.type;
        name[0] = sample.isList ? 'm' : 's';
        name[1] = 'f';
        const SoField* field = gallery->getField(name.c_str());
        ASSERT_TRUE(field) << name;
        EXPECT_EQ(field->getTypeId().getName(), SbName(sample.type.c_str()));
    }
}

TEST(NodeFields, TellTheirNodeByItsName)
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

TEST(NodeFields, TellNodesApartThatHaveNoNameOrTheSame)
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

TEST(NodeFields, KeepTheirNodeAliveAndForgetNamesOfThoseThatWent)
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

TEST(NodeFields, ALongRowOfReferencesGoesWithoutTheStack)
{
    SoRef<SoFieldGallery> last(new SoFieldGallery);
    for (int i = 0; i < 20'000; ++i) {
        SoRef<SoFieldGallery> next(new SoFieldGallery);
        next->sfNode.setValue(last.get());
        last = next;
    }
    last = nullptr;
}
