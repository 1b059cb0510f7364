// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/SceneFiles.h"

#include <xsg/paths/NodeLabel.h>
#include <xsg/paths/NodePlaces.h>
#include <xsg/query/SoQuerySearch.h>

namespace scopix
{

namespace
{

constexpr int PieceNodes = 1 << 16;

void printFound(const std::vector<SoRef<SoNode>>& found, xsg::NodePlaces& places)
{
    for (const SoRef<SoNode>& node : found)
        print(places.pathOf(*node).toText() + "\n");
}

void printJson(const std::vector<SoRef<SoNode>>& found, xsg::NodePlaces& places)
{
    JsonText json;
    json.beginArray();
    for (const SoRef<SoNode>& node : found) {
        json.beginObject();
        json.text("path", places.pathOf(*node).toText());
        json.text("type", xsg::typeNameOf(*node).getString());
        json.text("name", node->getName().getString());
        json.endObject();
    }
    json.endArray();
    print(json.take());
}

} // namespace

int findNodes(const Arguments& arguments)
{
    const SoQuery query(arguments.values[1]);
    if (query.isEmpty()) {
        complain(query.getError().empty() ? "The query has nothing in it." : query.getError().getText());
        return Failed;
    }
    const SoRef<SoNode> root = loadOrComplain(arguments.values[0]);
    if (!root)
        return Failed;
    SoQuerySearch search(query, root.get());
    while (search.advance(PieceNodes)) {
    }
    xsg::NodePlaces places(root.get());
    if (arguments.has("json"))
        printJson(search.getFound(), places);
    else
        printFound(search.getFound(), places);
    return search.getFound().empty() ? Differs : Fine;
}

} // namespace scopix
