// SPDX-License-Identifier: MIT
#include "export/GltfTidying.h"

#include <set>
#include <utility>

namespace scopix
{

namespace
{

using Node = GltfContent::Node;

class Tidying
{
public:
    explicit Tidying(GltfContent& content)
        : m_nodes(content.nodes)
        , m_meshes(content.meshes)
    {
    }

    void run()
    {
        for (std::size_t i = m_nodes.size(); i > 0; --i) {
            liftMatrix(m_nodes[i - 1]);
            takeMesh(m_nodes[i - 1]);
        }
        for (Node& node : m_nodes) // their matrices are final by now
            takeMovement(node);
        dropUnused();
    }

private:
    void liftMatrix(Node& node)
    {
        if (node.children.empty() || node.mover)
            return;
        const SbMatrix matrix = m_nodes[node.children.front()].matrix;
        for (const std::size_t child : node.children) {
            if (m_nodes[child].mover || !(m_nodes[child].matrix == matrix))
                return;
        }
        for (const std::size_t child : node.children)
            m_nodes[child].matrix = SbMatrix();
        node.matrix = matrix * node.matrix;
    }

    void takeMesh(Node& node)
    {
        if (node.children.size() != 1)
            return;
        const Node& child = m_nodes[node.children.front()];
        const bool isBare =
            child.children.empty() && child.light < 0 && child.camera < 0 && child.mesh >= 0 && !child.mover;
        if (!isBare || !(child.matrix == SbMatrix()))
            return;
        const std::string& mesh = m_meshes[static_cast<std::size_t>(child.mesh)].name;
        const bool isNamed = node.mover || !node.name.empty(); // what moves will have its parent's name
        if (!child.name.empty() && isNamed && child.name != mesh)
            return;
        if (!isNamed)
            node.name = child.name;
        node.mesh = child.mesh;
        node.children.clear();
    }

    void takeMovement(Node& node)
    {
        if (node.children.size() != 1 || node.mover || !(node.matrix == SbMatrix()) || node.mesh >= 0)
            return;
        Node& child = m_nodes[node.children.front()];
        if (!child.mover || (!node.name.empty() && !child.name.empty()))
            return;
        std::string name = node.name.empty() ? child.name : node.name;
        node = Node(child);
        node.name = std::move(name);
    }

    void dropUnused()
    {
        std::vector<std::size_t> kept{0};
        for (std::size_t i = 0; i < kept.size(); ++i)
            kept.insert(kept.end(), m_nodes[kept[i]].children.begin(), m_nodes[kept[i]].children.end());
        std::vector<std::size_t> places(m_nodes.size());
        for (std::size_t i = 0; i < kept.size(); ++i)
            places[kept[i]] = i;
        std::vector<Node> nodes;
        nodes.reserve(kept.size());
        for (const std::size_t old : kept) {
            nodes.push_back(std::move(m_nodes[old]));
            for (std::size_t& child : nodes.back().children)
                child = places[child];
        }
        m_nodes = std::move(nodes);
    }

    std::vector<Node>& m_nodes;
    std::vector<GltfContent::Mesh>& m_meshes;
};

// The scene's own root takes the place of the one that everything is collected in.
void takeRoot(GltfContent& content)
{
    Node& top = content.nodes.front();
    if (top.children.size() != 1 || top.mesh >= 0)
        return;
    Node root = std::exchange(content.nodes[top.children.front()], {});
    content.nodes.front() = std::move(root);
}

const char* kindOf(const Node& node)
{
    if (node.light >= 0)
        return "Light";
    if (node.camera >= 0)
        return "Camera";
    return node.isJoint ? "Joint" : nullptr;
}

} // namespace

void tidy(GltfContent& content)
{
    takeRoot(content);
    Tidying(content).run();
}

void nameWhatIsReferredTo(GltfContent& content)
{
    std::multiset<std::string> names;
    for (const Node& node : content.nodes)
        names.insert(node.name);
    for (Node& node : content.nodes) {
        const char* kind = kindOf(node);
        if (!kind)
            continue;
        const std::string stem = node.name.empty() ? kind : node.name;
        names.erase(names.find(node.name));
        node.name = stem;
        for (int number = 2; names.count(node.name) > 0; ++number)
            node.name = stem + ' ' + std::to_string(number);
        names.insert(node.name);
    }
}

} // namespace scopix
