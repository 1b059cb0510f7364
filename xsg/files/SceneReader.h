// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/ValueText.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace xsg
{

/// Reads the text of a scene; see SoSceneFile for its form.
class SceneReader
{
public:
    explicit SceneReader(std::string_view text)
        : m_text(text)
    {
    }

    /// Null on the first error.
    SoRef<SoNode> read();

    /// After an error: where, counted from 1, and one sentence on what is wrong and what was expected.
    int getLine() const;
    int getColumn() const;
    const std::string& getProblem() const { return m_problem; }

private:
    struct OpenNode {
        SoRef<SoNode> node;
        std::string_view label;
    };
    struct Connection {
        SoField* field;
        std::string_view label;
        std::string_view sourceName;
        std::size_t at;
        SoField* source;
        SbString value; // as written; null where it was not
    };

    /// Nodes that a field refers to by their labels.
    struct NodeValue {
        SoField* field;
        std::string_view text;
        std::size_t at;
    };

    bool fail(std::size_t at, std::string problem);
    void skipBlanks();
    bool atEnd() const { return m_at >= m_text.size(); }
    char peek() const { return atEnd() ? '\0' : m_text[m_at]; }
    bool accept(char c);
    std::string_view readWord();
    bool readQuoted(std::string& out);
    bool readFirstLine();

    bool readItem();
    bool openNode(std::string_view type, std::size_t at);
    bool closeNode();
    bool place(const SoRef<SoNode>& node, std::size_t at);
    bool readReference();
    bool readField(std::string_view name, std::size_t at);
    bool readValue(std::string_view& value, std::size_t& start);
    bool readMarks(SoField* field);
    bool resolveReferences();
    void forgetReferences();
    bool readNode(TextReader& in, SoRef<SoNode>& node) const;
    bool refuseValue(const SoField& field, std::string_view value, std::size_t at);
    bool connect();
    std::vector<const Connection*> sourcesFirst() const;

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_problemAt = 0;
    std::string m_problem;
    SoRef<SoNode> m_root;
    std::vector<OpenNode> m_open;
    std::unordered_map<std::string_view, SoRef<SoNode>> m_labels;
    std::vector<NodeValue> m_nodeValues;
    std::vector<Connection> m_connections;
    SbString m_value; // keeps its memory from field to field
};

} // namespace xsg
