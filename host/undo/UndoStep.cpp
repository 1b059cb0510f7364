// SPDX-License-Identifier: MIT
#include "undo/UndoStep.h"

#include "support/CatchExceptions.h"

#include <scopix/SpxCommand.h>

#include <QScopedValueRollback>

#include <algorithm>
#include <climits>
#include <iterator>

namespace scopix
{

namespace
{

// A range that is walked from its end.
template <class Range>
struct Reversed {
    const Range& range;
    auto begin() const { return range.rbegin(); }
    auto end() const { return range.rend(); }
};

} // namespace

UndoStep::UndoStep(UndoHistory& history, std::unique_ptr<SpxCommand> command,
                   UndoHistory::CommandContext context)
    : m_history(history)
    , m_context(std::move(context))
{
    m_commands.push_back(std::move(command));
}

UndoStep::~UndoStep() = default;

bool UndoStep::merge(UndoStep& next)
{
    if (!m_open || gesture() != next.gesture())
        return false;
    std::move(next.m_commands.begin(), next.m_commands.end(), std::back_inserter(m_commands));
    const auto& touched = next.m_context.touched;
    if (touched.empty())
        m_context.touched.clear();
    for (const SoFieldContainer* container : touched) {
        if (!touches(container))
            m_context.touched.push_back(container);
    }
    return true;
}

void UndoStep::undo()
{
    run(Reversed<decltype(m_commands)>{m_commands}, [](SpxCommand& command) { command.undo(); });
}

void UndoStep::redo()
{
    run(m_commands, [](SpxCommand& command) { command.redo(); });
}

template <class Commands, class Act>
void UndoStep::run(const Commands& commands, Act act)
{
    close();
    const QScopedValueRollback<bool> busy(m_history.m_busy, true);
    const QScopedValueRollback<bool> running(m_running, true);
    for (const auto& command : commands) {
        if (m_dropped)
            break;
        const QString failure = catchExceptions([&] { act(*command); });
        if (!failure.isEmpty())
            emit m_history.failed(UndoHistory::tr("“%1” failed: %2").arg(text(), failure));
    }
}

bool UndoStep::touches(const SoFieldContainer* container) const
{
    const auto& touched = m_context.touched;
    return touched.empty() || std::find(touched.begin(), touched.end(), container) != touched.end();
}

void UndoStep::drop()
{
    m_dropped = true;
    if (!m_running)
        m_commands.clear();
}

UndoEntry::UndoEntry(UndoHistory& history, std::shared_ptr<UndoStep> step)
    : QUndoCommand(step->text())
    , m_step(std::move(step))
    , m_sweeping(history.m_sweeping)
{
}

int UndoEntry::id() const
{
    return m_step->gesture() == 0 ? -1 : static_cast<int>(m_step->gesture() % INT_MAX);
}

// While the stack is rebuilt, the steps stay as they were.
bool UndoEntry::mergeWith(const QUndoCommand* next)
{
    return !m_sweeping && m_step->merge(*static_cast<const UndoEntry*>(next)->m_step);
}

void UndoEntry::undo()
{
    if (m_sweeping)
        return;
    const std::shared_ptr<UndoStep> step = m_step;
    step->undo();
}

void UndoEntry::redo()
{
    if (m_sweeping || !m_taken) {
        m_taken = true;
        return;
    }
    const std::shared_ptr<UndoStep> step = m_step;
    step->redo();
}

} // namespace scopix
