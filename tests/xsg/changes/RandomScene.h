// SPDX-License-Identifier: MIT
#pragma once

#include <support/SoFieldGallery.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <random>
#include <set>
#include <string>
#include <vector>

/// Scenes of all that a file can hold: odd and equal names, nodes in several places, references, connections,
/// marks, and nodes of unknown types.
class RandomScene
{
public:
    explicit RandomScene(unsigned seed)
        : m_random(seed)
    {
    }

    SoRef<SoNode> make(int nodes)
    {
        SoRef<SoSeparator> root(new SoSeparator);
        m_nodes = {root.get()};
        m_groups = {root.get()};
        for (int i = 0; i < nodes; ++i)
            addNode();
        for (int i = 0; i < nodes; ++i)
            editField();
        return SoRef<SoNode>(root.get());
    }
    void mutate(SoNode* root, int edits)
    {
        collect(root);
        for (int i = 0; i < edits; ++i) {
            editOnce();
            collect(root);
        }
    }
    int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    /// A node that refers to one that it stands in would keep both alive.
    static void forgetReferences(SoNode* root)
    {
        RandomScene scene(0);
        scene.collect(root);
        for (SoNode* node : scene.m_nodes) {
            if (auto* gallery = dynamic_cast<SoFieldGallery*>(node)) {
                gallery->sfNode.setValue(nullptr);
                gallery->mfNode.setNum(0);
            }
        }
    }

private:
    void collect(SoNode* root)
    {
        m_nodes.clear();
        m_groups.clear();
        std::set<SoNode*> seen;
        std::vector<SoNode*> open{root};
        while (!open.empty()) {
            SoNode* node = open.back();
            open.pop_back();
            if (!seen.insert(node).second)
                continue;
            m_nodes.push_back(node);
            if (SoGroup* group = node->asGroup()) {
                m_groups.push_back(group);
                open.insert(open.end(), group->getChildren().begin(), group->getChildren().end());
            }
        }
    }
    template <class T>
    T& any(std::vector<T>& items)
    {
        return items[static_cast<std::size_t>(below(static_cast<int>(items.size())))];
    }
    SoNode* makeNode()
    {
        switch (below(9)) {
        case 0:
        case 1:
            return new SoSeparator;
        case 2:
            return new SoSwitch;
        case 3:
            return new SoMaterial;
        case 4:
            return new SoFieldGallery;
        case 5:
            return new SoSphere;
        case 6:
            return new SoUnknownNode(SbName(below(2) == 0 ? "Foreign" : "Strange"));
        default:
            return new SoCube;
        }
    }
    void name(SoNode* node)
    {
        static constexpr const char* names[] = {"",          "",    "",   "a",   "b",  "Cube",
                                                "two words", "x/y", "\"", "c.d", "[1]"};
        node->setName(names[below(11)]);
    }
    void addNode()
    {
        SoGroup* group = any(m_groups);
        if (below(8) == 0) {
            group->insertChild(any(m_nodes),
                               below(group->getNumChildren() + 1)); // refused where it would loop
            return;
        }
        SoNode* node = makeNode();
        name(node);
        group->insertChild(node, below(group->getNumChildren() + 1));
        m_nodes.push_back(node);
        if (SoGroup* made = node->asGroup())
            m_groups.push_back(made);
    }
    std::vector<SoField*> fieldsOf(SoNode* node)
    {
        std::vector<SoField*> fields;
        for (SoField* field = node->getFieldData()->getField(node, 0); field;
             field = node->getFieldData()->getNext(field))
            fields.push_back(field);
        return fields;
    }
    void editField()
    {
        SoNode* node = any(m_nodes);
        if (auto* unknown = dynamic_cast<SoUnknownNode*>(node)) {
            static constexpr const char* texts[] = {"1 2", "[ 1,\n2 ]", "\"a # b\"", "word"};
            const std::string field(1, static_cast<char>('p' + below(4)));
            unknown->addField(SbName(field.c_str()))->set(texts[below(4)]);
            return;
        }
        std::vector<SoField*> fields = fieldsOf(node);
        if (fields.empty())
            return;
        SoField* field = any(fields);
        switch (below(6)) {
        case 0:
            field->setIgnored(below(2) == 0);
            break;
        case 1:
            connect(field);
            break;
        case 2:
            field->disconnect();
            break;
        default:
            write(node, field);
        }
    }
    void connect(SoField* field)
    {
        std::vector<SoField*> sources = fieldsOf(any(m_nodes));
        if (!sources.empty())
            field->connectFrom(any(sources));
    }
    /// None that refers to others: what was taken out of the scene would then keep itself alive.
    SoRef<SoNode> anyReferred()
    {
        SoNode* node = any(m_nodes);
        return node->asGroup() || dynamic_cast<SoFieldGallery*>(node) ? SoRef<SoNode>() : SoRef<SoNode>(node);
    }
    void write(SoNode* node, SoField* field)
    {
        if (auto* gallery = dynamic_cast<SoFieldGallery*>(node); gallery && below(2) == 0) {
            gallery->sfNode.setValue(anyReferred());
            gallery->mfNode.set1Value(below(3), anyReferred());
            gallery->mfFloat.set1Value(below(6), static_cast<float>(below(9)) / 2);
            gallery->sfString.setValue(below(2) == 0 ? "line\nline # no comment" : "}");
            return;
        }
        for (const char* text : {"7", "0.5 0.5 0.5", "TRUE", "SPRING"})
            if (below(3) > 0 && field->set(text))
                return;
        field->setDefault(false);
    }
    void editOnce()
    {
        SoGroup* group = any(m_groups);
        const int count = group->getNumChildren();
        switch (below(8)) {
        case 0:
            addNode();
            break;
        case 1:
            if (count > 0)
                group->removeChild(below(count));
            break;
        case 2:
            move(group);
            break;
        case 3:
            name(any(m_nodes));
            break;
        case 4:
            if (count > 0)
                group->replaceChild(below(count), makeNode());
            break;
        default:
            editField();
        }
    }
    void move(SoGroup* group)
    {
        if (group->getNumChildren() == 0)
            return;
        const int place = below(group->getNumChildren());
        const SoRef<SoNode> child(group->getChild(place));
        SoGroup* to = below(2) == 0 ? group : any(m_groups);
        group->removeChild(place);
        if (!to->insertChild(child.get(), below(to->getNumChildren() + 1)))
            group->insertChild(child.get(), place);
    }

    std::minstd_rand m_random;
    std::vector<SoNode*> m_nodes;
    std::vector<SoGroup*> m_groups;
};

/// As a file keeps it: what is in no scene is not referred to, and what is connected has its source's value.
inline SoRef<SoNode> settled(SoNode* scene)
{
    std::string error;
    SoRef<SoNode> once = SoSceneFile::readText(SoSceneFile::writeText(scene), "scene", error);
    if (!once)
        return once;
    SoRef<SoNode> twice = SoSceneFile::readText(SoSceneFile::writeText(once.get()), "scene", error);
    RandomScene::forgetReferences(once.get());
    return twice;
}
