// SPDX-License-Identifier: MIT
#pragma once

#include "undo/EditWatch.h"
#include "undo/GestureTracker.h"
#include "undo/UndoShelf.h"
#include "undo/UserInput.h"

#include <xsg/core/SoWriteRecorder.h>

#include <QObject>
#include <QScopedValueRollback>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <set>
#include <vector>

class SoField;
class SoFieldContainer;
class SpxCommand;

namespace scopix
{

class UndoEntry;

/// The undo stack of edits: runs each command that the services are handed and keeps it, the commands of one
/// gesture as one step. While the user acts it is told of every write of the edited fields too, so that a
/// step gives back every bit, whatever the commands say or whether there is one; what anybody else writes is
/// no edit. A step that leaves everything as it was is not on the stack, and what could be redone before it
/// still can. GUI thread only.
class UndoHistory : public QObject, private SoWriteRecorder
{
    Q_OBJECT

public:
    /// What the host notes with each step.
    struct CommandContext {
        QString text;                                 // names a step whose change is not known
        std::vector<const SoFieldContainer*> touched; // by such a step; empty: not known
        GestureTracker::Gesture gesture = 0;          // 0: a step of its own
    };
    static constexpr std::size_t DefaultMemoryLimit = std::size_t(256) << 20;

    explicit UndoHistory(QObject* parent = nullptr);
    ~UndoHistory() override;

    QUndoStack& stack() { return m_stack; }
    UserInput& input() { return m_input; }
    /// Asked for each new step, and for each field that is written while the user acts: whether it is an
    /// edited one.
    void setEdited(std::function<CommandContext()> context, std::function<bool(const SoField&)> isEdited);

    /// Asked about each container that a new step touches: why nobody may edit it, or an empty text. Such a
    /// step is taken back at once, and refused() says why. Null, as at first: about none.
    void setLock(std::function<QString(const SoFieldContainer&)> lock) { m_lock = std::move(lock); }

    /// Null, as at first: nobody. It must outlive its use.
    void setWatch(EditWatch* watch) { m_watch = watch; }
    EditWatch* getWatch() const { return m_watch; }

    /// Runs the command's execute() and keeps the command. While a step is being undone or redone, the
    /// command is pushed from the event loop.
    void execute(std::unique_ptr<SpxCommand> command, const CommandContext& context);
    /// Drops the steps that touch the container, and those with unknown effects.
    void forget(const SoFieldContainer* container);
    /// What was edited so far is on the stack; else it comes there when the event that edits has been
    /// delivered.
    void settle();
    /// As settle(), and what follows is another step.
    void endStep();
    /// The fields that steps between the saved state and the present one have changed.
    std::set<SoField*> editedSinceSaved() const;
    /// Writes to these what they held in the saved state, or as far back as the steps reach; unrecorded.
    void writeSaved(const std::set<SoField*>& fields);
    /// What `act` writes is no edit.
    template <class Act>
    void unrecorded(Act&& act)
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        act();
    }
    /// The last step that edited the field, and can be undone, made it what it holds now: for an edit whose
    /// outcome was known later. A step that made no difference then goes.
    void completeLast(SoField& field);
    /// Such an act runs now, and no step.
    bool isUnrecorded() const { return m_busy && !m_isRunning; }
    /// Asked before anything is executed, undone or redone: while `isHeld` answers true, nothing is.
    void setHold(std::function<bool()> isHeld) { m_isHeld = std::move(isHeld); }
    /// Forgets the steps; edits that were not saved stay so, and the stack then is not clean.
    void clear();

    /// Takes all steps off the stack, which then is empty and clean: another scene is edited from now on.
    /// They go on to be told of edits whose outcome comes late, and of nodes that go.
    std::shared_ptr<UndoShelf> shelve();
    /// Puts them back, in place of what is on the stack.
    void unshelve(const std::shared_ptr<UndoShelf>& shelf);
    /// As clear(), and forgets what is shelved too.
    void clearAll();
    /// Tells the stacks of several scenes apart: each has another number, and keeps it.
    quint64 getNumber() const { return m_number; }

    /// Of each scene's steps, in bytes. When the steps take more, the oldest are dropped, but never the
    /// newest.
    void setMemoryLimit(std::size_t bytes);
    std::size_t memoryLimit() const { return m_memoryLimit; }
    std::size_t memoryUsed() const;
    /// Some were dropped for it since the last clear().
    bool hasDroppedOldSteps() const { return m_hasDroppedOld; }

signals:
    /// Something was edited, or steps were undone or redone.
    void acted();
    /// A command threw, or a step could not be undone and was taken out; one sentence.
    void failed(const QString& sentence);
    /// A step was taken back, as it touches what is locked; one sentence.
    void refused(const QString& sentence);
    /// Steps went with a node that they touch; one sentence.
    void lost(const QString& sentence);
    void droppedOldSteps();

private:
    friend class UndoStep;
    friend class UndoEntry;
    using StepPtr = std::shared_ptr<UndoStep>;
    using Steps = std::vector<StepPtr>;
    struct Deferred {
        std::unique_ptr<SpxCommand> command;
        CommandContext context;
    };

    class Running;

    void aboutToWrite(SoField& field, int start, int removed) override;
    void record(SoField& field, int start, int removed);
    void inputChanged();
    void listen();

    UndoStep& stepOfInput();
    UndoStep& stepFor(const CommandContext& context);
    void settleCurrent();
    void settleEarlier();
    void finishCurrent();
    void finishLoneStep();
    void pushCurrent();
    void takeCurrentOff();
    QString refusalOf(const UndoStep& step) const;
    void takeBackCurrent(const QString& refusal);
    void showCurrent();
    void releaseUnused();
    void releaseLater(StepPtr step);

    void run(UndoStep& step, bool undoes);
    void standStill();
    void recordDeferred();
    int dropSteps(const SoFieldContainer* container);
    void restackWithoutDropped();
    void restack(Steps steps, int index, int clean);
    int cleanIndexAfterSweep() const;
    void dropOldSteps();
    void tellLost(int count, const SoFieldContainer& container);
    void goBackToHeld();
    std::vector<std::shared_ptr<UndoShelf>> findShelves() const;
    void completeShelved(SoField& field);
    int dropShelved(const SoFieldContainer* container);
    Steps steps() const;
    StepPtr stepAt(int index) const;

    std::function<CommandContext()> m_context = [] { return CommandContext(); };
    std::function<bool(const SoField&)> m_isEdited = [](const SoField&) { return false; };
    std::function<QString(const SoFieldContainer&)> m_lock; // null: nothing is locked
    EditWatch* m_watch = nullptr;
    bool m_isRunning = false; // a step, backwards or forwards
    QUndoStack m_stack;
    StepPtr m_current;          // may still grow
    bool m_currentIsOn = false; // the stack, at its end
    bool m_isOfInput = false;   // it belongs to the input that is being delivered
    Steps m_unsettled;          // edits of earlier gestures that are not on the stack yet
    Steps m_redoable;           // could be redone before it
    int m_cleanBefore = -1;     // index of the saved state before it
    Steps m_unused;             // released when no field is being written: with them nodes may go
    UndoStep* m_executing = nullptr;
    std::vector<Deferred> m_deferred;
    std::size_t m_memoryLimit = DefaultMemoryLimit;
    bool m_hasDroppedOld = false;
    bool m_busy = false; // inside a step's undo or redo
    bool m_sweeping = false;
    std::function<bool()> m_isHeld;
    int m_heldIndex = -1;          // where the stack is put back to, once it has moved
    bool m_stateIsUnknown = false; // a step failed half-way, so that nothing tells what was saved
    int m_lostCount = 0;           // not yet told
    QString m_lostWith;
    std::vector<std::weak_ptr<UndoShelf>> m_shelves;
    quint64 m_number = 0;
    quint64 m_lastNumber = 0;
    UserInput m_input;
};

} // namespace scopix
