// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/files/NodeNotes.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/SbString.h>
#include <xsg/values/XsgExport.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

class SoField;

namespace xsg
{

/// Writes a scene as text, in pieces as long as the caller has time for; see SoSceneFile for its form.
/// Belongs to the graph's thread.
///
/// Between pieces fields may change: each is written as it is when its turn comes. Children, names and
/// connections must stay, or the writer must not be used any more.
class XSG_API SceneWriter
{
public:
    using Clock = std::chrono::steady_clock;
    /// Is handed the text piece by piece.
    using Sink = std::function<void(const std::string&)>;
    /// Is offered fields whose values are long; true where it writes the value itself, at this place.
    using ValueSink = std::function<bool(const SoField&)>;

    explicit SceneWriter(Sink sink, ValueSink longValues = {})
        : m_sink(std::move(sink))
        , m_longValues(std::move(longValues))
    {
    }

    /// The scene must live as long as it is being written.
    void begin(const SoNode* root);
    /// Writes on until it is done, which is when this returns true, or the time is up.
    bool advance(Clock::time_point until);
    /// All at once.
    void write(const SoNode* root);
    /// How much is written, from 0 to 1.
    double getProgress() const;

    /// The state of a field: `text`, the value that was left to the ValueSink, if any, and `rest`.
    struct Record {
        std::string text;
        std::string rest;
    };
    /// Once the scene is written: the state of a field as it is now, for SceneRecords. Empty where the
    /// field's node is not in the scene.
    Record recordOf(const SoField& field);

private:
    enum class Phase { Labels, Nodes, Done };
    struct Frame {
        const SoNode* node;
        std::size_t child;
        bool isEmpty;
    };
    struct Note {
        bool isReached = false;
        bool isLabelled = false;
        int label = 0;           // 0 until it is needed; negative until the node has been written
        std::uint32_t place = 0; // in the text, counted from 1
    };

    void step();
    void labelNext();
    void label(const SoNode* node);
    void addReferences(const SoNode* node);
    void visit(const SoNode* node);
    void visitNext();
    void beginNode(const SoNode* node, std::size_t depth);
    void endNode(bool isEmpty, std::size_t depth);
    bool writeFields(const SoNode* node, std::size_t depth);
    void writeField(const SoField& field);
    void writeMarks(const SoField& field);
    void writeValue(const SoField& field);
    bool leaveValue(const SoField& field);
    void writeReference(const SoNode* node);
    void writeLabel(const SoNode* node);
    void indent(std::size_t depth);
    void flush(std::size_t above);
    static bool isWorthWriting(const SoField& field);
    bool isConnectionKept(const SoField& field) const;
    bool canBeNamed(const SoNode& node) const;

    Sink m_sink;
    ValueSink m_longValues;
    std::string m_out;
    std::string m_recorded; // of a record, up to a value that is left to the sink
    SbString m_value;
    Phase m_phase = Phase::Done;
    const SoNode* m_root = nullptr;
    std::vector<const SoNode*> m_pending; // to be looked at for labels
    std::vector<Frame> m_frames;
    NodeNotes<Note> m_notes;
    std::uint32_t m_lastPlace = 0;
    std::uint32_t m_nodeCount = 0; // as far as they have been reached
    int m_lastLabel = 0;
};

} // namespace xsg
