// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbString.h>

#include <functional>
#include <string>
#include <unordered_map>
#include <unordered_set>

class SoField;

namespace xsg
{

/// Writes a scene as text; see SoSceneFile for its form.
class SceneWriter
{
public:
    /// Is handed the text piece by piece.
    using Sink = std::function<void(const std::string&)>;
    explicit SceneWriter(Sink sink)
        : m_sink(std::move(sink))
    {
    }
    void write(const SoNode* root);

private:
    void findLabelled(const SoNode* root);
    void addReferences(const SoNode* node);
    void beginNode(const SoNode* node, std::size_t depth);
    void endNode(bool isEmpty, std::size_t depth);
    bool writeFields(const SoNode* node, std::size_t depth);
    void writeField(const SoField& field);
    void writeValue(const SoField& field);
    void writeReference(const SoNode* node);
    void writeLabel(const SoNode* node);
    void indent(std::size_t depth);
    void flush(std::size_t above);
    static bool isWorthWriting(const SoField& field);
    bool isConnectionKept(const SoField& field) const;

    Sink m_sink;
    std::string m_out;
    SbString m_value;
    std::unordered_set<const SoNode*> m_reached;
    std::unordered_map<const SoNode*, int> m_labels; // 0 until the node has been written
    int m_lastLabel = 0;
};

} // namespace xsg
