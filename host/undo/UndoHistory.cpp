// SPDX-License-Identifier: MIT
#include "undo/UndoHistory.h"

#include "support/CatchExceptions.h"
#include "undo/UndoStep.h"

#include <scopix/SpxCommand.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

UndoHistory::UndoHistory(QObject* parent)
    : QObject(parent)
{
    connect(&m_stack, &QUndoStack::indexChanged, this, &UndoHistory::acted);
}

UndoHistory::~UndoHistory()
{
    clear();
}

void UndoHistory::execute(std::unique_ptr<SpxCommand> command, const CommandContext& context)
{
    const QString failure = catchExceptions([&] { command->execute(); });
    if (!failure.isEmpty()) {
        emit failed(tr("“%1” failed: %2").arg(context.text, failure));
        return;
    }
    if (!m_busy) {
        record(std::move(command), context);
        return;
    }
    m_deferred.push_back({std::move(command), context});
    if (m_deferred.size() == 1)
        QMetaObject::invokeMethod(
            this, [this] { recordDeferred(); }, Qt::QueuedConnection);
}

void UndoHistory::recordDeferred()
{
    std::vector<Deferred> deferred;
    deferred.swap(m_deferred);
    for (Deferred& each : deferred)
        record(std::move(each.command), each.context);
}

void UndoHistory::record(std::unique_ptr<SpxCommand> command, const CommandContext& context)
{
    m_touched.insert(context.touched.begin(), context.touched.end());
    m_mayTouchAnything |= context.touched.empty();
    m_stack.push(new UndoEntry(*this, std::make_shared<UndoStep>(*this, std::move(command), context)));
}

void UndoHistory::forget(const SoFieldContainer* container)
{
    const auto touches = [&](const Deferred& deferred) {
        const auto& touched = deferred.context.touched;
        return touched.empty() || std::find(touched.begin(), touched.end(), container) != touched.end();
    };
    m_deferred.erase(std::remove_if(m_deferred.begin(), m_deferred.end(), touches), m_deferred.end());
    if (m_touched.erase(container) == 0 && !m_mayTouchAnything)
        return;
    m_mayTouchAnything = false; // all such steps are dropped now
    if (!dropSteps(container))
        return;
    if (m_busy)
        QMetaObject::invokeMethod(
            this, [this] { rebuildStack(); }, Qt::QueuedConnection);
    else
        rebuildStack();
}

bool UndoHistory::dropSteps(const SoFieldContainer* container)
{
    bool any = false;
    for (int i = 0; i < m_stack.count(); ++i) {
        const StepPtr step = stepAt(i);
        if (!step->touches(container))
            continue;
        step->drop();
        any = true;
    }
    return any;
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

// QUndoStack removes commands, obsolete ones too, only from its end, so the stack is emptied and the
// remaining steps are pushed again.
void UndoHistory::rebuildStack()
{
    const QScopedValueRollback<bool> sweeping(m_sweeping, true);
    const int clean = cleanIndexAfterSweep();
    std::vector<StepPtr> kept;
    int index = 0;
    for (int i = 0; i < m_stack.count(); ++i) {
        StepPtr step = stepAt(i);
        if (step->isDropped())
            continue;
        index += i < m_stack.index() ? 1 : 0;
        kept.push_back(std::move(step));
    }
    m_stack.clear();
    for (StepPtr& step : kept) {
        step->close();
        m_stack.push(new UndoEntry(*this, std::move(step)));
    }
    m_stack.resetClean();
    if (clean >= 0) {
        m_stack.setIndex(clean);
        m_stack.setClean();
    }
    m_stack.setIndex(index);
}

void UndoHistory::clear()
{
    m_deferred.clear();
    m_touched.clear();
    m_mayTouchAnything = false;
    const bool wasClean = m_stack.isClean();
    m_stack.clear();
    if (!wasClean)
        m_stack.resetClean(); // the edits themselves are still there
}

UndoHistory::StepPtr UndoHistory::stepAt(int index) const
{
    return static_cast<const UndoEntry*>(m_stack.command(index))->step();
}

} // namespace scopix
