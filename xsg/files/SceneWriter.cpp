// SPDX-License-Identifier: MIT
#include <xsg/files/SceneWriter.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/values/ValueText.h>

#include <algorithm>
#include <cmath>

namespace
{

// Deeper levels are written no deeper, or a deeply nested scene would be all blanks.
constexpr std::size_t DeepestIndent = 16;

const std::vector<SoNode*>& childrenOf(const SoNode* node)
{
    static const std::vector<SoNode*> none;
    SoGroup* group = const_cast<SoNode*>(node)->asGroup();
    return group ? group->getChildren() : none;
}

template <class Visit>
void forEachField(const SoNode* node, Visit visit)
{
    const SoFieldData* data = node->getFieldData();
    for (const SoField* field = data->getField(node, 0); field; field = data->getNext(field))
        visit(*field);
}

const SoNode* sourceNodeOf(const SoField& field)
{
    const SoField* source = field.getConnectedField();
    return source ? dynamic_cast<const SoNode*>(source->getContainer()) : nullptr;
}

} // namespace

void xsg::SceneWriter::write(const SoNode* root)
{
    struct Frame {
        const SoNode* node;
        std::size_t child;
        bool isEmpty;
    };
    findLabelled(root);
    m_out = std::string(SoSceneFile::FirstLine) + "\n";
    std::vector<Frame> frames;
    const auto visit = [&](const SoNode* node) {
        const auto label = m_labels.find(node);
        if (label != m_labels.end() && label->second > 0) {
            indent(frames.size());
            m_out += '@' + std::to_string(label->second) + '\n';
            return;
        }
        beginNode(node, frames.size());
        const bool hasFields = writeFields(node, frames.size() + 1);
        const bool isEmpty = !hasFields && childrenOf(node).empty();
        if (!hasFields && !isEmpty)
            m_out += '\n';
        frames.push_back({node, 0, isEmpty});
    };
    visit(root);
    while (!frames.empty()) {
        Frame& frame = frames.back();
        const auto& children = childrenOf(frame.node);
        if (frame.child < children.size()) {
            visit(children[frame.child++]);
        } else {
            const bool isEmpty = frame.isEmpty;
            frames.pop_back();
            endNode(isEmpty, frames.size());
        }
        flush(1U << 20U);
    }
    flush(0);
}

// Nodes that are met twice, those that fields refer to, and those whose fields others are connected from need
// labels.
void xsg::SceneWriter::findLabelled(const SoNode* root)
{
    std::vector<const SoNode*> pending{root};
    while (!pending.empty()) {
        const SoNode* node = pending.back();
        pending.pop_back();
        if (!m_reached.insert(node).second) {
            m_labels.emplace(node, 0);
            continue;
        }
        addReferences(node);
        pending.insert(pending.end(), childrenOf(node).begin(), childrenOf(node).end());
    }
}

void xsg::SceneWriter::addReferences(const SoNode* node)
{
    forEachField(node, [&](const SoField& field) {
        if (!isWorthWriting(field))
            return;
        if (const SoNode* source = sourceNodeOf(field))
            m_labels.emplace(source, 0);
        if (const auto* single = dynamic_cast<const SoSFNode*>(&field))
            m_labels.emplace(single->getNode(), 0);
        else if (const auto* list = dynamic_cast<const SoMFNode*>(&field))
            for (int i = 0; i < list->getNum(); ++i)
                m_labels.emplace((*list)[i].get(), 0);
    });
}

// A source outside of the scene cannot be named in its file.
bool xsg::SceneWriter::isConnectionKept(const SoField& field) const
{
    const SoNode* source = sourceNodeOf(field);
    return source && m_reached.count(source) > 0;
}

void xsg::SceneWriter::beginNode(const SoNode* node, std::size_t depth)
{
    indent(depth);
    const auto* unknown = dynamic_cast<const SoUnknownNode*>(node);
    m_out += (unknown ? unknown->getTypeName() : node->getTypeId().getName()).getString();
    if (node->getName().getLength() > 0) {
        m_out += ' ';
        xsg::appendQuoted(m_out, node->getName().getString());
    }
    const auto label = m_labels.find(node);
    if (label != m_labels.end()) {
        // A connection may have named it before it comes.
        label->second = label->second < 0 ? -label->second : ++m_lastLabel;
        m_out += " @" + std::to_string(label->second);
    }
    m_out += " {";
}

void xsg::SceneWriter::endNode(bool isEmpty, std::size_t depth)
{
    if (!isEmpty)
        indent(depth);
    m_out += "}\n";
}

bool xsg::SceneWriter::isWorthWriting(const SoField& field)
{
    return !field.isDefault() || field.isIgnored() || field.isConnected();
}

bool xsg::SceneWriter::writeFields(const SoNode* node, std::size_t depth)
{
    bool any = false;
    forEachField(node, [&](const SoField& field) {
        if (!isWorthWriting(field))
            return;
        if (!any)
            m_out += '\n';
        any = true;
        indent(depth);
        writeField(field);
        m_out += '\n';
    });
    return any;
}

void xsg::SceneWriter::writeField(const SoField& field)
{
    m_out += field.getName().getString();
    m_out += ':';
    const bool keepsConnection = isConnectionKept(field);
    field.evaluate();
    if (!field.isDefault()) {
        m_out += ' ';
        writeValue(field);
    }
    if (field.isIgnored())
        m_out += " !ignored";
    if (!keepsConnection)
        return;
    m_out += " <- ";
    writeLabel(sourceNodeOf(field));
    m_out += std::string(".") + field.getConnectedField()->getName().getString();
}

void xsg::SceneWriter::writeValue(const SoField& field)
{
    if (const auto* single = dynamic_cast<const SoSFNode*>(&field)) {
        writeReference(single->getNode());
    } else if (const auto* list = dynamic_cast<const SoMFNode*>(&field)) {
        m_out += "[ ";
        for (int i = 0; i < list->getNum(); ++i) {
            if (i > 0)
                m_out += ", ";
            writeReference((*list)[i].get());
        }
        m_out += list->getNum() > 0 ? " ]" : "]";
    } else {
        field.get(m_value);
        m_out += m_value.str();
    }
}

// A node outside of the scene cannot be named in its file.
void xsg::SceneWriter::writeReference(const SoNode* node)
{
    if (m_reached.count(node) > 0)
        writeLabel(node);
    else
        m_out += "NULL";
}

void xsg::SceneWriter::writeLabel(const SoNode* node)
{
    int& label = m_labels[node];
    if (label == 0)
        label = -++m_lastLabel;
    m_out += '@' + std::to_string(std::abs(label));
}

void xsg::SceneWriter::indent(std::size_t depth)
{
    m_out.append(4 * std::min(depth, DeepestIndent), ' ');
}

void xsg::SceneWriter::flush(std::size_t above)
{
    if (m_out.size() <= above)
        return;
    m_sink(m_out);
    m_out.clear();
}
