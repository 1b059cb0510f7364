// SPDX-License-Identifier: MIT
#include "undo/UndoStep.h"

#include "support/CatchExceptions.h"

#include <scopix/SpxCommand.h>

#include <QScopedValueRollback>

#include <algorithm>

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

UndoStep::UndoStep(UndoHistory& history, UndoHistory::CommandContext context)
    : m_history(history)
    , m_context(std::move(context))
{
}

UndoStep::~UndoStep() = default;

void UndoStep::append(std::unique_ptr<SpxCommand> command, const UndoHistory::CommandContext& context)
{
    m_commands.push_back(std::move(command));
    if (context.touched.empty())
        m_context.touched.clear();
    for (const SoFieldContainer* container : context.touched) {
        if (!touches(container))
            m_context.touched.push_back(container);
    }
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
    m_history.m_openStep.reset();
    const QScopedValueRollback<bool> busy(m_history.m_busy, true);
    const QScopedValueRollback<bool> running(m_running, true);
    for (const auto& command : commands) {
        if (m_dropped)
            break;
        const QString failure = catchExceptions([&] { act(*command); });
        if (!failure.isEmpty())
            emit m_history.failed(UndoHistory::tr("\"%1\" failed: %2").arg(text(), failure));
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
