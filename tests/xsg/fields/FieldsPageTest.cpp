// SPDX-License-Identifier: MIT
// Holds docs/fields.md against the registered field types.
#include <gtest/gtest.h>

#include <support/SoFieldGallery.h>

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
        ADD_FAILURE() << "docs/fields.md has a type that is not in the gallery: " << type;
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
