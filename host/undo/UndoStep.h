// SPDX-License-Identifier: MIT
#pragma once

#include "undo/UndoHistory.h"

#include <QUndoCommand>

namespace scopix
{

/// One step of the undo history: the commands of one gesture. Part of UndoHistory.
class UndoStep
{
public:
    UndoStep(UndoHistory& history, UndoHistory::CommandContext context);
    ~UndoStep();

    void append(std::unique_ptr<SpxCommand> command, const UndoHistory::CommandContext& context);
    void undo();
    void redo();

    bool touches(const SoFieldContainer* container) const;
    bool touchesUnknown() const { return m_context.touched.empty(); }
    /// Never runs its commands again.
    void drop();
    bool isDropped() const { return m_dropped; }

    const QString& text() const { return m_context.text; }
    GestureTracker::Gesture gesture() const { return m_context.gesture; }

private:
    template <class Commands, class Act>
    void run(const Commands& commands, Act act);

    UndoHistory& m_history;
    UndoHistory::CommandContext m_context;
    std::vector<std::unique_ptr<SpxCommand>> m_commands;
    bool m_running = false;
    bool m_dropped = false;
};

/// The step's place on the stack; the stack may be rebuilt around it.
class UndoEntry : public QUndoCommand
{
public:
    UndoEntry(UndoHistory& history, std::shared_ptr<UndoStep> step);

    void undo() override;
    /// Does nothing the first time, when the stack takes it in: its commands have been executed.
    void redo() override;
    const std::shared_ptr<UndoStep>& step() const { return m_step; }

private:
    std::shared_ptr<UndoStep> m_step;
    const bool& m_sweeping;
    bool m_taken = false;
};

} // namespace scopix
