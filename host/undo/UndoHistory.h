// SPDX-License-Identifier: MIT
#pragma once

#include "undo/GestureTracker.h"

#include <QObject>
#include <QUndoStack>

#include <memory>
#include <unordered_set>
#include <vector>

class SoFieldContainer;
class SpxCommand;

namespace scopix
{

class UndoStep;
class UndoEntry;

/// The undo stack of edits: runs each command that the services are handed and keeps it, the commands of one
/// gesture merged into one step. Undoing a step undoes its commands in reverse order. GUI thread only.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    /// What the host notes with each command.
    struct CommandContext {
        QString text;                                 // names the step
        std::vector<const SoFieldContainer*> touched; // empty: not known
        GestureTracker::Gesture gesture = 0;          // 0: a step of its own
    };

    explicit UndoHistory(QObject* parent = nullptr);
    ~UndoHistory() override;

    QUndoStack& stack() { return m_stack; }

    /// Runs the command's execute() and keeps the command. While a step is being undone or redone, the
    /// command is pushed from the event loop.
    void execute(std::unique_ptr<SpxCommand> command, const CommandContext& context);
    /// Drops the steps that touch the container, and those with unknown effects.
    void forget(const SoFieldContainer* container);
    /// Forgets the steps; edits that were not saved stay so, and the stack then is not clean.
    void clear();

signals:
    /// A command was executed, or steps were undone or redone.
    void acted();
    /// A command threw; the sentence names the step.
    void failed(const QString& sentence);

private:
    friend class UndoStep;
    friend class UndoEntry;
    using StepPtr = std::shared_ptr<UndoStep>;
    struct Deferred {
        std::unique_ptr<SpxCommand> command;
        CommandContext context;
    };

    void record(std::unique_ptr<SpxCommand> command, const CommandContext& context);
    void recordDeferred();
    bool dropSteps(const SoFieldContainer* container);
    void rebuildStack();
    int cleanIndexAfterSweep() const;
    StepPtr stepAt(int index) const;

    QUndoStack m_stack;
    std::unordered_set<const SoFieldContainer*> m_touched; // by any step since the last clear
    bool m_mayTouchAnything = false;                       // there is a step with unknown effects
    std::vector<Deferred> m_deferred;
    bool m_busy = false; // inside a step's undo or redo
    bool m_sweeping = false;
};

} // namespace scopix
