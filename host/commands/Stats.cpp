// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/SceneCounts.h"
#include "commands/SceneFiles.h"
#include "commands/ScenePlace.h"

#include <xsg/paths/NodeLabel.h>
#include <xsg/paths/NodePlaces.h>

#include <array>

namespace scopix
{

namespace
{

struct Column {
    const char* name;
    std::int64_t SceneCounts::*count;
};

constexpr std::array Columns{
    Column{"nodes", &SceneCounts::nodes},       Column{"groups", &SceneCounts::groups},
    Column{"shapes", &SceneCounts::shapes},     Column{"triangles", &SceneCounts::triangles},
    Column{"lines", &SceneCounts::lines},       Column{"points", &SceneCounts::points},
    Column{"pictures", &SceneCounts::pictures}, Column{"pictureBytes", &SceneCounts::pictureBytes},
    Column{"bytes", &SceneCounts::bytes}};
constexpr std::size_t Width = 13;

std::string aligned(const std::string& text)
{
    return std::string(text.size() < Width ? Width - text.size() : 1, ' ') + text;
}

void printRow(const SceneCounts& counts, const std::string& path)
{
    std::string line;
    for (const Column& column : Columns)
        line += aligned(std::to_string(counts.*column.count));
    print(line + "  " + path + "\n");
}

void printTable(const SceneCounts& total, const std::vector<std::pair<std::string, SceneCounts>>& branches,
                const std::string& path)
{
    std::string heading;
    for (const Column& column : Columns)
        heading += aligned(column.name);
    print(heading + "\n");
    printRow(total, path);
    for (const auto& [branch, counts] : branches)
        printRow(counts, branch);
}

void writeCounts(JsonText& json, const std::string& path, const SceneCounts& counts)
{
    json.text("path", path);
    for (const Column& column : Columns)
        json.number(column.name, counts.*column.count);
}

void printJson(const SceneCounts& total, const std::vector<std::pair<std::string, SceneCounts>>& branches,
               const std::string& path)
{
    JsonText json;
    json.beginObject();
    writeCounts(json, path, total);
    json.key("branches");
    json.beginArray();
    for (const auto& [branch, counts] : branches) {
        json.beginObject();
        writeCounts(json, branch, counts);
        json.endObject();
    }
    json.endArray();
    json.endObject();
    print(json.take());
}

} // namespace

int countScene(const Arguments& arguments)
{
    const std::string& file = arguments.values[0];
    const SoRef<SoNode> root = loadOrComplain(file);
    if (!root)
        return Failed;
    xsg::SceneLookup lookup(root.get());
    const ScenePlace place = findPlace(lookup, arguments.values.size() > 1 ? arguments.values[1] : "/", file);
    if (!place.node)
        return Failed;
    if (place.field) {
        complain("\"" + arguments.values[1] + "\" is a field; the path of a node was expected.");
        return Failed;
    }
    std::vector<BranchCounts> branches;
    const SceneCounts total = countBranch(root.get(), place.node, branches);
    xsg::NodePlaces places(root.get());
    const SoScenePath path = places.pathOf(*place.node);
    std::vector<std::pair<std::string, SceneCounts>> rows;
    for (const BranchCounts& branch : branches) {
        const SoGroup& group = *place.node->asGroup();
        SoScenePath child = path;
        child.append({xsg::labelOf(*group.getChild(branch.child)).getString(),
                      places.labelIndexOf(group, branch.child)});
        rows.emplace_back(child.toText(), branch.counts);
    }
    (arguments.has("json") ? printJson : printTable)(total, rows, path.toText());
    return Fine;
}

} // namespace scopix
