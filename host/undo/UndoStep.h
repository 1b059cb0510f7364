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
    UndoStep(UndoHistory& history, std::unique_ptr<SpxCommand> command, UndoHistory::CommandContext context);
    ~UndoStep();

    /// Takes over the commands of the step that follows, when both are of one gesture and this one has not
    /// been undone since. False, and nothing changes, otherwise.
    bool merge(UndoStep& next);
    /// Nothing is merged into it any more.
    void close() { m_open = false; }
    void undo();
    void redo();

    bool touches(const SoFieldContainer* container) const;
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
    bool m_open = true;
    bool m_running = false;
    bool m_dropped = false;
};

/// The step's place on the stack; the stack may be rebuilt around it.
class UndoEntry : public QUndoCommand
{
public:
    UndoEntry(UndoHistory& history, std::shared_ptr<UndoStep> step);

    void undo() override;
    /// Does nothing the first time, when it is pushed: its commands have been executed.
    void redo() override;
    /// Steps of one gesture have the same id; a step of its own has none.
    int id() const override;
    bool mergeWith(const QUndoCommand* next) override;
    const std::shared_ptr<UndoStep>& step() const { return m_step; }

private:
    std::shared_ptr<UndoStep> m_step;
    const bool& m_sweeping;
    bool m_taken = false;
};

} // namespace scopix
