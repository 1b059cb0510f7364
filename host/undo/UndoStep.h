// SPDX-License-Identifier: MIT
#pragma once

#include "undo/FieldEdit.h"
#include "undo/UndoHistory.h"

#include <QUndoCommand>

#include <map>
#include <set>

namespace scopix
{

/// One step of the undo history: the commands of one gesture, and what they and the editors made of the
/// fields that the history watched. Undoing runs the commands' undo first, for what they do beside these
/// fields; then the fields get back every bit and flag, whatever the commands left in them. Part of
/// UndoHistory (decisions.md: undo-rewrites).
class UndoStep
{
public:
    UndoStep(UndoHistory& history, UndoHistory::CommandContext context);
    ~UndoStep();

    GestureTracker::Gesture gesture() const { return m_context.gesture; }

    /// Before a write of a field that it watches.
    void aboutToWrite(SoField& field, int start, int removed);
    /// Before a write inside of a command: the field is watched from now on, and the step touches its node.
    void aboutToWriteInCommand(SoField& field, int start, int removed);
    /// A node goes while the command runs. One that only this command wrote was its own.
    void letGo(const SoFieldContainer* container);
    /// Before the command lets fields follow others.
    void tellConnections(const SpxCommand& command) const;
    /// Takes over a command that was executed. `isSeen`: its writes of watched fields were seen from the
    /// first on.
    void add(std::unique_ptr<SpxCommand> command, UndoHistory::CommandContext context, bool isSeen);

    /// Looks what the step made of its fields so far.
    void compare();
    void markStale() { m_isStale = true; }
    /// Something was written or handed over since it was compared.
    bool isStale() const { return m_isStale; }
    /// As FieldEdit::completeLater(); false where it did not edit this field.
    bool completeLater(SoField& field);
    /// Every field is as it was before, and the commands did nothing beside.
    bool isNothing() const;
    /// Nothing is added any more; what does not differ is let go of.
    void close();

    /// False where it could not be done, or not as a whole; `reason` then says why.
    bool undo(QString& reason);
    bool redo(QString& reason);

    /// Adds those that it changed.
    void collectFields(std::set<SoField*>& fields) const;
    /// Of these fields alone what undo() or redo() would write.
    void writeFields(const std::set<SoField*>& fields, bool undoes) const;

    bool touches(const SoFieldContainer* container) const;
    const std::set<const SoFieldContainer*>& touched() const { return m_touched; }
    /// What it touches is not known.
    bool mayTouchAnything() const { return m_mayTouchAnything; }
    /// Never runs its commands again.
    void drop();
    bool isDropped() const { return m_dropped; }

    QString text() const;
    /// Once it is closed.
    std::size_t bytes() const { return m_bytes; }

private:
    struct Command {
        std::unique_ptr<SpxCommand> command;
        bool wrote = false;         // fields, when it was executed
        bool isWithoutMore = false; // all that it did is seen in the fields
    };
    using Edits = std::map<SoField*, std::unique_ptr<FieldEdit>>;
    enum class Direction { Undo, Redo };

    FieldEdit& editOf(SoField& field);
    void forgetUnchanged();
    void noteTouched(const SpxCommand& command, const UndoHistory::CommandContext& context);
    bool isSeenWhole(const SpxCommand& command, bool isSeen) const;
    void run(Direction direction, QString& reason);
    QString runCommands(Direction direction);
    QString runCommand(Command& command, Direction direction);
    bool restoreFields(Direction direction);
    const FieldEdit* firstChange() const;

    UndoHistory& m_history;
    UndoHistory::CommandContext m_context;
    std::vector<Command> m_commands;
    Edits m_edits;
    std::set<SoField*> m_foundInCommand; // not watched before, since the command runs
    std::set<const SoFieldContainer*> m_newInCommand;
    std::set<const SoFieldContainer*> m_touched;
    bool m_commandWrote = false;
    bool m_mayTouchAnything = false;
    bool m_isStale = true;
    std::size_t m_bytes = 0; // once it is closed
    bool m_running = false;
    bool m_dropped = false;
};

/// The step's place on the stack; the stack may be rebuilt around it.
class UndoEntry : public QUndoCommand
{
public:
    UndoEntry(UndoHistory& history, std::shared_ptr<UndoStep> step);
    ~UndoEntry() override;

    void undo() override;
    /// Does nothing the first time, when it is pushed: its commands have been executed.
    void redo() override;
    const std::shared_ptr<UndoStep>& step() const { return m_step; }

private:
    UndoHistory& m_history;
    std::shared_ptr<UndoStep> m_step;
    bool m_taken = false;
};

} // namespace scopix
