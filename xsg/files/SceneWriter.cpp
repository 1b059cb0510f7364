// SPDX-License-Identifier: MIT
#include <xsg/files/SceneWriter.h>

#include <xsg/fields/SoSFImage.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/base/SoMFNode.h>
#include <xsg/nodes/base/SoSFNode.h>
#include <xsg/nodes/base/SoUnknownNode.h>
#include <xsg/values/SbValueText.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

// Deeper levels are written no deeper, or a deeply nested scene would be all blanks.
constexpr std::size_t DeepestIndent = 16;
constexpr std::size_t PieceBytes = std::size_t{1} << 20U;
// Making the text of a longer value takes noticeable time.
constexpr int LongList = 4096;
constexpr int LongPicture = 128 * 128;

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

bool isLong(const SoField& field)
{
    if (const auto* list = dynamic_cast<const SoMField*>(&field))
        return list->getNum() > LongList;
    const auto* image = dynamic_cast<const SoSFImage*>(&field);
    int width = 0;
    int height = 0;
    int components = 0;
    return image && image->getValue(width, height, components) && width > LongPicture / std::max(1, height);
}

const SoNode* sourceNodeOf(const SoField& field)
{
    const SoField* source = field.getConnectedField();
    return source ? dynamic_cast<const SoNode*>(source->getContainer()) : nullptr;
}

} // namespace

void xsg::SceneWriter::begin(const SoNode* root)
{
    m_root = root;
    m_notes = {};
    m_frames.clear();
    m_pending = {root};
    m_lastPlace = 0;
    m_nodeCount = 0;
    m_lastLabel = 0;
    m_phase = Phase::Labels;
}

bool xsg::SceneWriter::advance(Clock::time_point until)
{
    while (m_phase != Phase::Done) {
        step();
        if (Clock::now() >= until)
            break;
    }
    return m_phase == Phase::Done;
}

void xsg::SceneWriter::write(const SoNode* root)
{
    begin(root);
    advance(Clock::time_point::max());
}

double xsg::SceneWriter::getProgress() const
{
    return m_phase == Phase::Labels ? 0 : double(m_lastPlace) / std::max(1U, m_nodeCount);
}

void xsg::SceneWriter::step()
{
    if (m_phase == Phase::Labels && !m_pending.empty())
        return labelNext();
    if (m_phase == Phase::Nodes)
        return visitNext();
    m_out = std::string(SoSceneFile::FirstLine) + "\n";
    m_phase = Phase::Nodes;
    visit(m_root);
}

// Nodes that are met twice, those that fields refer to, and those whose fields others are connected from need
// labels.
void xsg::SceneWriter::labelNext()
{
    const SoNode* node = m_pending.back();
    m_pending.pop_back();
    Note& note = m_notes[*node];
    if (std::exchange(note.isReached, true)) {
        note.isLabelled = true;
        return;
    }
    ++m_nodeCount;
    addReferences(node);
    m_pending.insert(m_pending.end(), childrenOf(node).begin(), childrenOf(node).end());
}

void xsg::SceneWriter::label(const SoNode* node)
{
    if (node)
        m_notes[*node].isLabelled = true;
}

void xsg::SceneWriter::visit(const SoNode* node)
{
    const Note note = m_notes.find(*node);
    if (note.label > 0) {
        indent(m_frames.size());
        m_out += '@' + std::to_string(note.label) + '\n';
        return;
    }
    beginNode(node, m_frames.size());
    const bool hasFields = writeFields(node, m_frames.size() + 1);
    const bool isEmpty = !hasFields && childrenOf(node).empty();
    if (!hasFields && !isEmpty)
        m_out += '\n';
    m_frames.push_back({node, 0, isEmpty});
}

void xsg::SceneWriter::visitNext()
{
    Frame& frame = m_frames.back();
    const auto& children = childrenOf(frame.node);
    if (frame.child < children.size()) {
        visit(children[frame.child++]);
    } else {
        const bool isEmpty = frame.isEmpty;
        m_frames.pop_back();
        endNode(isEmpty, m_frames.size());
    }
    if (m_frames.empty())
        m_phase = Phase::Done;
    flush(m_frames.empty() ? 0 : PieceBytes);
}

void xsg::SceneWriter::addReferences(const SoNode* node)
{
    forEachField(node, [&](const SoField& field) {
        if (!isWorthWriting(field))
            return;
        label(sourceNodeOf(field));
        if (const auto* single = dynamic_cast<const SoSFNode*>(&field))
            label(single->getNode());
        else if (const auto* list = dynamic_cast<const SoMFNode*>(&field))
            for (int i = 0; i < list->getNum(); ++i)
                label((*list)[i].get());
    });
}

// Nothing outside of the scene can be named in its file, nor what fields refer to only since the labels were
// found.
bool xsg::SceneWriter::canBeNamed(const SoNode& node) const
{
    const Note note = m_notes.find(node);
    return m_phase == Phase::Done ? note.place > 0 : note.isReached && note.isLabelled;
}

bool xsg::SceneWriter::isConnectionKept(const SoField& field) const
{
    const SoNode* source = sourceNodeOf(field);
    return source && canBeNamed(*source);
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
    Note& note = m_notes[*node];
    note.place = ++m_lastPlace;
    if (note.isLabelled) {
        // A connection may have named it before it comes.
        note.label = note.label < 0 ? -note.label : ++m_lastLabel;
        m_out += " @" + std::to_string(note.label);
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
    field.evaluate();
    if (!field.isDefault()) {
        m_out += ' ';
        writeValue(field);
    }
    writeMarks(field);
}

void xsg::SceneWriter::writeMarks(const SoField& field)
{
    if (field.isIgnored())
        m_out += " !ignored";
    if (!isConnectionKept(field))
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
    } else if (!leaveValue(field)) {
        SoAnimatedValues::getInstance().getRest(field).get(m_value);
        m_out += m_value.str();
    }
}

// False where the text is to be made here.
bool xsg::SceneWriter::leaveValue(const SoField& field)
{
    if (!m_longValues || !isLong(field))
        return false;
    if (m_phase != Phase::Done) {
        flush(0); // what comes before it
        return m_longValues(field);
    }
    if (!m_longValues(field))
        return false;
    m_recorded = std::exchange(m_out, {});
    return true;
}

void xsg::SceneWriter::writeReference(const SoNode* node)
{
    if (node && canBeNamed(*node))
        writeLabel(node);
    else
        m_out += "NULL";
}

void xsg::SceneWriter::writeLabel(const SoNode* node)
{
    Note& note = m_notes[*node];
    if (m_phase != Phase::Done && note.label == 0)
        note.label = -++m_lastLabel;
    const auto label =
        m_phase == Phase::Done ? note.place - 1 : static_cast<std::uint32_t>(std::abs(note.label));
    m_out += '@' + std::to_string(label);
}

// A record stands alone and names nodes by their places. It says all there is to say about the field, since
// what it is read into may hold another state.
xsg::SceneWriter::Record xsg::SceneWriter::recordOf(const SoField& field)
{
    const auto* node = dynamic_cast<const SoNode*>(field.getContainer());
    if (!node || m_notes.find(*node).place == 0)
        return {};
    m_out.clear();
    m_recorded.clear();
    writeLabel(node);
    m_out += std::string(" ") + field.getName().getString() + ": ";
    field.evaluate();
    writeValue(field);
    if (field.isDefault())
        m_out += " !default";
    writeMarks(field);
    if (m_recorded.empty())
        m_recorded.swap(m_out);
    return {std::exchange(m_recorded, {}), std::exchange(m_out, {})};
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
