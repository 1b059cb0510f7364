// SPDX-License-Identifier: MIT
#include "undo/UndoHistory.h"

#include "support/CatchExceptions.h"
#include "text/NodeText.h"
#include "undo/UndoStep.h"

#include <scopix/SpxCommand.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>

#include <QScopedValueRollback>
#include <QThread>

#include <algorithm>

namespace scopix
{

// While it exists, commands run.
class UndoHistory::Running
{
public:
    Running(UndoHistory& history, bool isStep)
        : m_history(history)
        , m_before(SoWriteRecorder::getActive())
        , m_wasRunning(history.m_isRunning)
        , m_isHeard(isStep && history.m_watch)
    {
        m_history.m_isRunning |= isStep;
        if (m_isHeard)
            setActive(&m_history);
        if (m_history.m_watch)
            m_history.m_watch->aboutToRun();
    }
    ~Running()
    {
        if (m_history.m_watch)
            m_history.m_watch->hasRun();
        if (m_isHeard)
            setActive(m_before);
        m_history.m_isRunning = m_wasRunning;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    UndoHistory& m_history;
    SoWriteRecorder* m_before;
    bool m_wasRunning;
    bool m_isHeard; // what a step writes is not recorded, but the watch is told
};

UndoHistory::UndoHistory(QObject* parent)
    : QObject(parent)
    , m_input([this] { inputChanged(); })
{
    connect(&m_stack, &QUndoStack::indexChanged, this, [this] {
        if (!m_sweeping && m_heldIndex < 0)
            emit acted();
    });
    // What follows is to be told apart from what was saved.
    connect(&m_stack, &QUndoStack::cleanChanged, this, [this](bool isClean) {
        if (isClean && !m_sweeping)
            finishCurrent();
    });
}

UndoHistory::~UndoHistory()
{
    clear();
}

void UndoHistory::setEdited(std::function<CommandContext()> context,
                            std::function<bool(const SoField&)> isEdited)
{
    m_context = std::move(context);
    m_isEdited = std::move(isEdited);
}

// --- Seeing edits

void UndoHistory::inputChanged()
{
    if (m_busy || m_executing)
        return;
    m_isOfInput = false;
    listen();
    settle();
    finishLoneStep();
}

// What belongs to no gesture goes on no longer than what runs.
void UndoHistory::finishLoneStep()
{
    if (m_input.isActing() || !m_current || m_current->gesture() != 0)
        return;
    finishCurrent();
    releaseUnused();
}

void UndoHistory::listen()
{
    if (m_input.mayAct() || m_executing)
        setActive(this);
    else if (getActive() == this)
        setActive(nullptr);
}

void UndoHistory::aboutToWrite(SoField& field, int start, int removed)
{
    if (!field.getContainer() || QThread::currentThread() != thread())
        return;
    if (m_busy) {
        if (m_isRunning && m_watch)
            m_watch->aboutToWrite(field, start, removed);
        return;
    }
    if (m_executing || (m_input.isActing() && m_isEdited(field)))
        record(field, start, removed);
}

void UndoHistory::record(SoField& field, int start, int removed)
{
    // What an animation shows is no value to come back to. The field leaves it before it is written.
    SoAnimatedValues::getInstance().giveBack(field);
    if (m_watch)
        m_watch->aboutToWrite(field, start, removed);
    if (m_executing)
        m_executing->aboutToWriteInCommand(field, start, removed);
    else
        stepOfInput().aboutToWrite(field, start, removed);
}

// Asked for with each write, of which there may be millions; the gesture is the same until other input comes.
UndoStep& UndoHistory::stepOfInput()
{
    if (!m_current || !m_isOfInput)
        stepFor(m_context());
    m_isOfInput = true;
    return *m_current;
}

void UndoHistory::execute(std::unique_ptr<SpxCommand> command, const CommandContext& context)
{
    if (m_isHeld && m_isHeld())
        return;
    if (m_busy) {
        const QString failure = catchExceptions([&] { command->execute(); });
        if (!failure.isEmpty())
            return emit failed(tr("“%1” failed: %2").arg(context.text, failure));
        m_deferred.push_back({std::move(command), context});
        if (m_deferred.size() == 1)
            QMetaObject::invokeMethod(
                this, [this] { recordDeferred(); }, Qt::QueuedConnection);
        return;
    }
    m_isOfInput = false;
    settle();
    stepFor(context);
    const StepPtr step = m_current;
    QString failure;
    {
        const QScopedValueRollback<UndoStep*> executing(m_executing, step.get());
        listen();
        const Running running(*this, false);
        step->tellConnections(*command);
        failure = catchExceptions([&] { command->execute(); });
    }
    listen();
    // It may have saved, which ends a step.
    UndoStep& last = m_current == step ? *step : stepFor(context);
    if (failure.isEmpty())
        last.add(std::move(command), context, m_input.isActing());
    else
        emit failed(tr("“%1” failed: %2").arg(context.text, failure));
    settle();
    finishLoneStep();
}

void UndoHistory::recordDeferred()
{
    std::vector<Deferred> deferred;
    deferred.swap(m_deferred);
    for (Deferred& each : deferred) {
        stepFor(each.context).add(std::move(each.command), each.context, false);
        settle();
        finishLoneStep();
    }
}

// --- The step that may still grow

UndoStep& UndoHistory::stepFor(const CommandContext& context)
{
    if (m_current && m_current->gesture() == context.gesture)
        return *m_current;
    if (m_current)
        finishCurrent();
    m_current = std::make_shared<UndoStep>(*this, context);
    return *m_current;
}

void UndoHistory::settle()
{
    if (m_busy || m_sweeping)
        return;
    settleEarlier();
    settleCurrent();
    releaseUnused();
}

void UndoHistory::settleEarlier()
{
    for (const StepPtr& earlier : std::exchange(m_unsettled, {})) {
        const StepPtr current = std::exchange(m_current, earlier);
        settleCurrent();
        finishCurrent();
        m_current = current;
    }
}

// The step is on the stack while it makes a difference.
void UndoHistory::settleCurrent()
{
    const StepPtr current = m_current;
    if (!current || !current->isStale())
        return;
    current->compare();
    const bool isOn = !current->isNothing();
    const QString refusal = isOn ? refusalOf(*current) : QString();
    if (!refusal.isEmpty())
        takeBackCurrent(refusal);
    else if (isOn && m_currentIsOn)
        showCurrent();
    else if (isOn)
        pushCurrent();
    else if (m_currentIsOn)
        takeCurrentOff();
}

void UndoHistory::pushCurrent()
{
    m_cleanBefore = m_stack.cleanIndex();
    m_redoable.clear();
    for (int i = m_stack.index(); i < m_stack.count(); ++i)
        m_redoable.push_back(stepAt(i));
    m_currentIsOn = true;
    m_stack.push(new UndoEntry(*this, m_current));
}

QString UndoHistory::refusalOf(const UndoStep& step) const
{
    QString refusal;
    for (const SoFieldContainer* container : step.touched()) {
        if (m_lock && refusal.isEmpty())
            refusal = m_lock(*container);
    }
    return refusal;
}

void UndoHistory::takeBackCurrent(const QString& refusal)
{
    if (m_currentIsOn)
        takeCurrentOff();
    const StepPtr step = std::exchange(m_current, nullptr);
    m_isOfInput = false;
    step->close();
    QString reason;
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        const Running running(*this, true);
        step->undo(reason);
    }
    step->drop();
    releaseLater(step);
    emit refused(refusal);
}

void UndoHistory::takeCurrentOff()
{
    m_currentIsOn = false;
    Steps kept = steps();
    kept.pop_back();
    const int index = static_cast<int>(kept.size());
    std::move(m_redoable.begin(), m_redoable.end(), std::back_inserter(kept));
    m_redoable.clear();
    restack(std::move(kept), index, m_cleanBefore);
    emit acted();
}

void UndoHistory::showCurrent()
{
    const auto* entry = static_cast<const UndoEntry*>(m_stack.command(m_stack.count() - 1));
    const_cast<UndoEntry*>(entry)->setText(m_current->text());
    emit m_stack.undoTextChanged(m_stack.undoText());
    emit m_stack.indexChanged(m_stack.index()); // views read the text again
}

void UndoHistory::finishCurrent()
{
    const StepPtr current = std::exchange(m_current, nullptr);
    if (!current)
        return;
    if (!m_currentIsOn && current->isStale())
        return m_unsettled.push_back(current);
    current->close();
    releaseLater(current);
    for (StepPtr& step : std::exchange(m_redoable, {}))
        releaseLater(std::move(step));
    m_currentIsOn = false;
}

void UndoHistory::releaseUnused()
{
    if (m_unused.empty())
        return;
    const Steps unused = std::exchange(m_unused, {});
    dropOldSteps();
}

// With a step nodes may go, and the stack still lists the entries that it is deleting.
void UndoHistory::releaseLater(StepPtr step)
{
    if (m_unused.empty())
        QMetaObject::invokeMethod(
            this, [this] { releaseUnused(); }, Qt::QueuedConnection);
    m_unused.push_back(std::move(step));
}

void UndoHistory::completeLast(SoField& field)
{
    if (m_current && m_current->completeLater(field)) {
        m_current->markStale();
        return settle();
    }
    for (int i = m_stack.index() - 1; i >= 0; --i) {
        const StepPtr step = stepAt(i);
        if (!step->completeLater(field))
            continue;
        if (step->isNothing())
            step->drop();
        else
            const_cast<UndoEntry*>(static_cast<const UndoEntry*>(m_stack.command(i)))->setText(step->text());
        QMetaObject::invokeMethod(
            this, [this] { restackWithoutDropped(); }, Qt::QueuedConnection);
        return;
    }
    completeShelved(field);
}

// --- Undo and redo

void UndoHistory::run(UndoStep& step, bool undoes)
{
    if (m_sweeping)
        return;
    if (m_heldIndex >= 0 || (m_isHeld && m_isHeld()))
        return standStill();
    finishCurrent();
    QString reason;
    {
        const QScopedValueRollback<bool> busy(m_busy, true);
        const Running running(*this, true);
        undoes ? step.undo(reason) : step.redo(reason);
    }
    if (reason.isEmpty())
        return;
    emit failed((undoes ? tr("“%1” cannot be undone and is no longer in the history: %2")
                        : tr("“%1” cannot be redone and is no longer in the history: %2"))
                    .arg(step.text(), reason));
    step.drop();
    m_stateIsUnknown = true;
    QMetaObject::invokeMethod(
        this, [this] { restackWithoutDropped(); }, Qt::QueuedConnection);
}

// QUndoStack moves whatever a command does, so it is put back, from the event loop (decisions.md:
// held-stack-moves).
void UndoHistory::standStill()
{
    if (m_heldIndex >= 0)
        return;
    m_heldIndex = m_stack.index();
    QMetaObject::invokeMethod(
        this, [this] { goBackToHeld(); }, Qt::QueuedConnection);
}

void UndoHistory::goBackToHeld()
{
    if (m_heldIndex < 0)
        return;
    const QScopedValueRollback<bool> sweeping(m_sweeping, true);
    m_stack.setIndex(m_heldIndex);
    m_heldIndex = -1;
}

// --- The saved state

void UndoHistory::endStep()
{
    settle();
    finishCurrent();
    releaseUnused();
}

std::set<SoField*> UndoHistory::editedSinceSaved() const
{
    std::set<SoField*> fields;
    const int saved = std::max(0, m_stack.cleanIndex());
    for (int i = std::min(saved, m_stack.index()); i < std::max(saved, m_stack.index()); ++i)
        stepAt(i)->collectFields(fields);
    return fields;
}

void UndoHistory::writeSaved(const std::set<SoField*>& fields)
{
    const int saved = std::max(0, m_stack.cleanIndex());
    unrecorded([&] {
        for (int i = m_stack.index() - 1; i >= saved; --i)
            stepAt(i)->writeFields(fields, true);
        for (int i = m_stack.index(); i < saved; ++i)
            stepAt(i)->writeFields(fields, false);
    });
}

// --- Steps that go

void UndoHistory::forget(const SoFieldContainer* container)
{
    const auto touches = [&](const Deferred& deferred) {
        const auto& touched = deferred.context.touched;
        return touched.empty() || std::find(touched.begin(), touched.end(), container) != touched.end();
    };
    m_deferred.erase(std::remove_if(m_deferred.begin(), m_deferred.end(), touches), m_deferred.end());
    if (m_executing)
        m_executing->letGo(container);
    const int shelved = dropShelved(container);
    const int dropped = dropSteps(container);
    if (dropped + shelved > 0)
        tellLost(dropped + shelved, *container);
    if (dropped == 0)
        return;
    if (m_busy || m_sweeping)
        QMetaObject::invokeMethod(
            this, [this] { restackWithoutDropped(); }, Qt::QueuedConnection);
    else
        restackWithoutDropped();
}

// How many of them were on the stack.
int UndoHistory::dropSteps(const SoFieldContainer* container)
{
    const auto drop = [&](const StepPtr& step) {
        const bool isMeant = !step->isDropped() && step->touches(container);
        if (isMeant)
            step->drop();
        return isMeant;
    };
    const Steps onStack = m_sweeping ? Steps() : steps();
    const auto count = std::count_if(onStack.begin(), onStack.end(), drop);
    std::for_each(m_redoable.begin(), m_redoable.end(), drop);
    std::for_each(m_unsettled.begin(), m_unsettled.end(), drop);
    if (m_current && !m_currentIsOn)
        drop(m_current);
    if (m_current && m_current->isDropped()) {
        releaseLater(std::exchange(m_current, nullptr));
        m_currentIsOn = false;
    }
    return static_cast<int>(count);
}

// From the event loop, since a branch that goes takes many nodes along.
void UndoHistory::tellLost(int count, const SoFieldContainer& container)
{
    m_lostWith = nodeText(container);
    m_lostCount += count;
    if (m_lostCount > count)
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const int lost = std::exchange(m_lostCount, 0);
            emit this->lost(
                lost == 1
                    ? tr("A step of the history went with “%1”, which no longer exists.").arg(m_lostWith)
                    : tr("%1 steps of the history went with “%2”, which no longer exists.")
                          .arg(lost)
                          .arg(m_lostWith));
        },
        Qt::QueuedConnection);
}

// The index of the saved state once the dropped steps are removed: -1, none, where one of them lies between
// it and the present state, since that edit can be neither undone nor redone.
int UndoHistory::cleanIndexAfterSweep() const
{
    const int clean = m_stack.cleanIndex();
    int after = clean;
    for (int i = 0; i < m_stack.count() && clean >= 0; ++i) {
        if (!stepAt(i)->isDropped())
            continue;
        const bool isBetween = i >= std::min(clean, m_stack.index()) && i < std::max(clean, m_stack.index());
        if (isBetween)
            return -1;
        after -= i < clean ? 1 : 0;
    }
    return after;
}

void UndoHistory::restackWithoutDropped()
{
    const int clean = std::exchange(m_stateIsUnknown, false) ? -1 : cleanIndexAfterSweep();
    Steps kept;
    int index = 0;
    for (int i = 0; i < m_stack.count(); ++i) {
        StepPtr step = stepAt(i);
        if (step->isDropped())
            continue;
        index += i < m_stack.index() ? 1 : 0;
        kept.push_back(std::move(step));
    }
    if (static_cast<int>(kept.size()) == m_stack.count())
        return;
    restack(std::move(kept), index, clean);
    emit acted();
}

// QUndoStack removes commands, obsolete ones too, only from its end, so the stack is emptied and the
// remaining steps are pushed again.
void UndoHistory::restack(Steps wanted, int index, int clean)
{
    const QScopedValueRollback<bool> sweeping(m_sweeping, true);
    m_stack.clear();
    for (StepPtr& step : wanted)
        m_stack.push(new UndoEntry(*this, std::move(step)));
    m_stack.resetClean();
    if (clean >= 0) {
        m_stack.setIndex(clean);
        m_stack.setClean();
    }
    m_stack.setIndex(index);
}

void UndoHistory::clear()
{
    const Steps redoable = std::exchange(m_redoable, {});
    const Steps unsettled = std::exchange(m_unsettled, {});
    const StepPtr current = std::exchange(m_current, nullptr);
    m_currentIsOn = false;
    m_deferred.clear();
    m_hasDroppedOld = false;
    const bool wasClean = m_stack.isClean();
    m_stack.clear();
    if (!wasClean)
        m_stack.resetClean(); // the edits themselves are still there
    const Steps unused = std::exchange(m_unused, {});
}

// --- Memory

void UndoHistory::setMemoryLimit(std::size_t bytes)
{
    m_memoryLimit = bytes;
    dropOldSteps();
}

std::size_t UndoHistory::memoryUsed() const
{
    std::size_t sum = 0;
    for (int i = 0; i < m_stack.count(); ++i)
        sum += stepAt(i)->bytes();
    return sum;
}

void UndoHistory::dropOldSteps()
{
    std::size_t used = memoryUsed();
    if (used <= m_memoryLimit || m_busy || m_sweeping)
        return;
    // Some more than needed, so that not each edit has to.
    const std::size_t wanted = m_memoryLimit - m_memoryLimit / 8;
    for (int i = 0; i + 1 < m_stack.count() && used > wanted; ++i) {
        const StepPtr step = stepAt(i);
        used -= std::min(used, step->bytes());
        step->drop();
    }
    m_hasDroppedOld = true;
    restackWithoutDropped();
    emit droppedOldSteps();
}

UndoHistory::Steps UndoHistory::steps() const
{
    Steps all;
    for (int i = 0; i < m_stack.count(); ++i)
        all.push_back(stepAt(i));
    return all;
}

UndoHistory::StepPtr UndoHistory::stepAt(int index) const
{
    return static_cast<const UndoEntry*>(m_stack.command(index))->step();
}

} // namespace scopix
