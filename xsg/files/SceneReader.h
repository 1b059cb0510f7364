// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoField.h>
#include <xsg/files/SceneReferences.h>
#include <xsg/files/SceneText.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/ValueScan.h>

#include <chrono>
#include <functional>
#include <future>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace xsg
{

/// Reads the text of a scene, in pieces as long as the caller has time for; see SoSceneFile for its form.
/// What is read stands alone until it is taken. Belongs to the graph's thread.
class XSG_API SceneReader
{
public:
    using Clock = std::chrono::steady_clock;

    /// `text` must outlive the reader.
    explicit SceneReader(std::string_view text)
        : m_text(text)
    {
    }
    explicit SceneReader(SceneText::Source source)
        : m_text(std::move(source))
    {
    }
    ~SceneReader();
    SceneReader(const SceneReader&) = delete;
    SceneReader& operator=(const SceneReader&) = delete;

    /// Reads on until it is done, which is when this returns true, or the time is up. A very long value is
    /// read by another thread; while that is waited for, this returns at once.
    bool advance(Clock::time_point until);
    /// The scene, once it is done; null on the first error.
    SoRef<SoNode> takeScene();
    /// All at once.
    SoRef<SoNode> read();
    /// Calls `goOn` with the part of a text in memory that is read, each few milliseconds.
    SoRef<SoNode> read(const std::function<void(double)>& goOn);
    /// Gives up, and hands over what has been read so far: nodes that stand nowhere.
    std::vector<SoRef<SoNode>> abandon();

    /// Is called for each node, in the order in which the text has them, before its fields are read.
    void setNodeListener(std::function<void(SoNode*)> listener) { m_nodeListener = std::move(listener); }

    /// After an error: where, counted from 1, and one sentence, without its full stop, on what is wrong
    /// and what was expected.
    int getLine() const { return m_fault.place.line; }
    int getColumn() const { return m_fault.place.column; }
    const SbSentence& getProblem() const { return m_fault.problem; }

    /// What of a field's state is to be taken: that it is not connected as it was, that it is connected, or
    /// its value and marks.
    enum class RecordPart { Disconnection, Connection, Value };
    /// Instead of a scene: the text is the state of one field of one of these nodes, as
    /// SceneWriter::recordOf() wrote it; see SceneRecords. False, with an error, where it cannot be that.
    bool readRecord(const std::vector<SoNode*>& nodes, RecordPart part);

private:
    enum class Phase { FirstLine, Items, References, Done };

    struct OpenNode {
        SoRef<SoNode> node;
        std::string label;
    };
    /// A value that is being looked for or read by another thread.
    struct Value {
        SoField* field;
        std::size_t start;
        ValueScan scan;
        std::shared_ptr<SoField> copy; // which the other thread writes
        std::future<bool> isRead;
    };

    bool fail(std::size_t at, const SbSentence& problem);
    void skipBlanks();
    bool skipSomeBlanks();
    bool atEnd() { return !m_text.has(m_at); }
    char peek() { return m_text.at(m_at); }
    bool accept(char c);
    std::string readWord();
    bool readQuoted(std::string& out);
    std::string quotedFrom(std::size_t at);

    bool step();
    bool isWaiting();
    bool readFirstLine();
    bool readItems();
    bool endItems();
    bool readItem();
    bool openNode(const std::string& type, std::size_t at);
    bool closeNode();
    bool place(const SoRef<SoNode>& node, std::size_t at);
    bool readReference();
    bool readField(const std::string& name, std::size_t at);
    bool readValue();
    bool takeValue(std::string_view value);
    bool parseElsewhere(std::string_view value);
    bool takeParsed();
    bool readMarks(SoField* field);
    bool readConnection(SoField* field, std::size_t start);
    bool applyRecord(SoField& field, RecordPart part);
    bool setRecorded(SoField& field);

    SceneText m_text;
    std::size_t m_at = 0;
    bool m_isInComment = false;
    Phase m_phase = Phase::FirstLine;
    Clock::time_point m_until = Clock::time_point::max();
    SceneFault m_fault;
    SceneReferences m_references{m_fault};
    SoRef<SoNode> m_root;
    std::vector<OpenNode> m_open;
    std::optional<Value> m_pending;
    SbString m_value;                            // keeps its memory from field to field
    std::function<void(SoNode*)> m_nodeListener; // or null
    bool m_isDefault = false;                    // says the record
};

} // namespace xsg
