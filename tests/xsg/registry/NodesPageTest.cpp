// SPDX-License-Identifier: MIT
// Holds docs/nodes.md against the registered node types.
#include <gtest/gtest.h>

#include <xsg/fields/SoSFBox3f.h>
#include <xsg/nodes/base/SoNode.h>

#include <fstream>
#include <set>

namespace
{

std::string defaultOf(const SoField& field)
{
    const auto* box = dynamic_cast<const SoSFBox3f*>(&field);
    if (box && box->getValue().isEmpty())
        return "empty";
    SbString text;
    field.get(text);
    std::string escaped;
    for (const char c : text.str())
        escaped += c == '|' ? std::string("\\|") : std::string(1, c);
    return escaped;
}

// The start of the field's line, up to where its explanation begins.
std::string lineOf(const SoField& field)
{
    return std::string("| `") + field.getName().getString() + "` | " +
           field.getTypeId().getName().getString() + " | `" + defaultOf(field) + "` | ";
}

struct Section {
    std::string name;
    std::vector<std::string> lines; // of its table
};

std::vector<Section> readSections()
{
    std::vector<Section> sections;
    std::ifstream in(SCOPIX_SOURCE_DIR "/docs/nodes.md");
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("### ", 0) == 0)
            sections.push_back({line.substr(4), {}});
        else if (line.rfind("| `", 0) == 0 && !sections.empty())
            sections.back().lines.push_back(line);
    }
    return sections;
}

} // namespace

TEST(NodesPage, ListsEveryNodeWithEveryField)
{
    const std::vector<Section> sections = readSections();
    ASSERT_FALSE(sections.empty());
    std::set<std::string> known;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        if (!type.canCreateInstance())
            continue;
        const std::string name = type.getName().getString();
        known.insert(name);
        const auto section =
            std::find_if(sections.begin(), sections.end(), [&](const Section& s) { return s.name == name; });
        if (section == sections.end()) {
            ADD_FAILURE() << "docs/nodes.md has no section \"### " << name << '"';
            continue;
        }
        const SoRef<SoNode> node(static_cast<SoNode*>(type.createInstance()));
        const SoFieldData* data = node->getFieldData();
        EXPECT_EQ(section->lines.size(), static_cast<std::size_t>(data->getNumFields())) << name;
        for (int i = 0; i < data->getNumFields(); ++i) {
            const std::string line = lineOf(*data->getField(node.get(), i));
            const bool found = static_cast<std::size_t>(i) < section->lines.size() &&
                               section->lines[static_cast<std::size_t>(i)].rfind(line, 0) == 0;
            EXPECT_TRUE(found) << "docs/nodes.md, " << name << ": line " << i + 1
                               << " of the table should begin\n"
                               << line;
        }
    }
    for (const Section& section : sections)
        EXPECT_EQ(known.count(section.name), 1U)
            << "docs/nodes.md has a node that does not exist: " << section.name;
}
