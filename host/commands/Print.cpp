// SPDX-License-Identifier: MIT
#include "commands/Commands.h"
#include "commands/JsonText.h"
#include "commands/Output.h"
#include "commands/SceneFiles.h"
#include "commands/ScenePlace.h"

#include <xsg/core/SoMField.h>
#include <xsg/paths/FieldText.h>
#include <xsg/paths/NodeLabel.h>

#include <unordered_set>
#include <utility>

namespace scopix
{

namespace
{

constexpr std::size_t PieceBytes = std::size_t{1} << 16U;
constexpr std::size_t DeepestIndent = 32;

template <class Visit>
void forEachField(const SoNode& node, Visit visit)
{
    const SoFieldData* data = node.getFieldData();
    for (SoField* field = data->getField(&node, 0); field; field = data->getNext(field)) {
        field->evaluate();
        visit(*field);
    }
}

/// Goes through a branch; each node is entered in its first place and only named in others.
template <class Visitor>
void walk(SoNode* root, Visitor& visitor)
{
    struct Frame {
        SoGroup* group;
        int next;
    };
    std::vector<Frame> open;
    std::unordered_set<const SoNode*> met;
    const auto enter = [&](SoNode* node) {
        SoGroup* group = node->asGroup();
        const bool isAgain = node->getParents().size() > 1 && !met.insert(node).second;
        visitor.begin(*node, open.size(), isAgain);
        if (group && !isAgain)
            open.push_back({group, 0});
        else
            visitor.end(false);
    };
    enter(root);
    while (!open.empty()) {
        Frame& frame = open.back();
        if (frame.next < frame.group->getNumChildren()) {
            enter(frame.group->getChild(frame.next++));
        } else {
            open.pop_back();
            visitor.end(true);
        }
    }
}

class TreeText
{
public:
    explicit TreeText(xsg::NodePlaces& places)
        : m_places(places)
    {
    }
    void begin(const SoNode& node, std::size_t depth, bool isAgain)
    {
        m_out.append(2 * std::min(depth, DeepestIndent), ' ');
        m_out += xsg::typeNameOf(node).getString();
        if (node.getName().getLength() > 0) {
            m_out += ' ';
            xsg::appendQuoted(m_out, node.getName().getString());
        }
        if (isAgain)
            m_out += " = " + m_places.pathOf(node).toText();
        m_out += '\n';
        flush(PieceBytes);
    }
    void end(bool /*isGroup*/) {}
    void flush(std::size_t above)
    {
        if (m_out.size() > above)
            print(std::exchange(m_out, {}));
    }

private:
    xsg::NodePlaces& m_places;
    std::string m_out;
};

class TreeJson
{
public:
    explicit TreeJson(xsg::NodePlaces& places)
        : m_places(places)
    {
    }
    void begin(const SoNode& node, std::size_t /*depth*/, bool isAgain)
    {
        m_json.beginObject();
        if (isAgain)
            m_json.text("same", m_places.pathOf(node).toText());
        else
            describe(node);
        if (m_json.size() > PieceBytes)
            print(m_json.take());
    }
    void end(bool isGroup)
    {
        if (isGroup)
            m_json.endArray();
        m_json.endObject();
    }
    void field(const SoField& field)
    {
        m_json.beginObject();
        m_json.text("type", field.getTypeId().getName().getString());
        m_json.boolean("default", field.isDefault());
        m_json.text("value", xsg::fieldText(field, m_places));
        if (field.isIgnored())
            m_json.boolean("ignored", true);
        if (const SoField* source = field.getConnectedField())
            writeSource(*source);
        m_json.endObject();
    }
    void flush() { print(m_json.take()); }

private:
    void describe(const SoNode& node)
    {
        m_json.text("type", xsg::typeNameOf(node).getString());
        m_json.text("name", node.getName().getString());
        m_json.key("fields");
        m_json.beginObject();
        forEachField(node, [this](const SoField& each) {
            m_json.key(each.getName().getString());
            field(each);
        });
        m_json.endObject();
        if (!const_cast<SoNode&>(node).asGroup())
            return;
        m_json.key("children");
        m_json.beginArray();
    }
    void writeSource(const SoField& source)
    {
        const auto* node = dynamic_cast<const SoNode*>(source.getContainer());
        if (!node || !m_places.has(*node))
            return;
        SoScenePath path = m_places.pathOf(*node);
        path.setField(source.getName().getString());
        m_json.text("follows", path.toText());
    }

    xsg::NodePlaces& m_places;
    JsonText m_json;
};

void printFields(const SoNode& node, xsg::NodePlaces& places)
{
    forEachField(node, [&](const SoField& field) {
        print(std::string(field.getName().getString()) + ": " + xsg::fieldText(field, places) +
              (field.isIgnored() ? " !ignored" : "") + (field.isDefault() ? "  # default\n" : "\n"));
    });
}

void printNode(SoNode* node, bool withFields, xsg::NodePlaces& places)
{
    if (withFields)
        printFields(*node, places);
    TreeText text(places);
    walk(node, text);
    text.flush(0);
}

std::string elementText(const SoField& field, int index)
{
    SbString text;
    static_cast<const SoMField&>(field).get1(index, text);
    return text.str();
}

void printField(const ScenePlace& place, bool asJson, xsg::NodePlaces& places)
{
    if (!asJson)
        return print((place.index < 0 ? xsg::fieldText(*place.field, places)
                                      : elementText(*place.field, place.index)) +
                     "\n");
    TreeJson json(places);
    JsonText element;
    if (place.index < 0)
        json.field(*place.field);
    else
        element.text(elementText(*place.field, place.index));
    json.flush();
    print(place.index < 0 ? "" : element.take() + "\n");
}

} // namespace

int printScene(const Arguments& arguments)
{
    const std::string& file = arguments.values[0];
    const SoRef<SoNode> root = loadOrComplain(file);
    if (!root)
        return Failed;
    xsg::SceneLookup lookup(root.get());
    const bool hasPath = arguments.values.size() > 1;
    const ScenePlace place = hasPath ? findPlace(lookup, arguments.values[1], file) : ScenePlace{root.get()};
    if (!place.node)
        return Failed;
    xsg::NodePlaces places(root.get());
    if (place.field) {
        place.field->evaluate();
        printField(place, arguments.has("json"), places);
    } else if (arguments.has("json")) {
        TreeJson json(places);
        walk(place.node, json);
        json.flush();
    } else {
        printNode(place.node, hasPath, places);
    }
    return Fine;
}

} // namespace scopix
