// SPDX-License-Identifier: MIT
#include "undo/UndoStep.h"

#include "support/CatchExceptions.h"
#include "text/NodeText.h"

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedConnections.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QScopedValueRollback>

#include <algorithm>
#include <iterator>
#include <utility>

namespace scopix
{

namespace
{

constexpr std::size_t CommandBytes = 512; // what it keeps is its own

// Notes what the fields held before a command writes them, to put it back.
class Rewinder : public SoWriteRecorder
{
public:
    explicit Rewinder(const std::map<SoField*, std::unique_ptr<FieldEdit>>& fields)
        : m_fields(fields)
        , m_before(setActive(this))
    {
    }
    ~Rewinder() override { setActive(m_before); }

    void aboutToWrite(SoField& field, int start, int removed) override
    {
        if (!field.getContainer())
            return;
        if (m_before)
            m_before->aboutToWrite(field, start, removed);
        watch(field);
        if (m_fields.count(&field) == 0)
            return;
        auto& edit = m_edits[&field];
        if (!edit)
            edit = std::make_unique<FieldEdit>(field);
        edit->aboutToWrite(start, removed);
    }
    const std::set<const SoFieldContainer*>& containers() const { return m_containers; }
    // A refused write notifies nobody.
    bool hasWritten() const
    {
        const auto isWritten = [](const auto& each) { return each.first->getChangeCount() != each.second; };
        return m_hasUnknown || std::any_of(m_counts.begin(), m_counts.end(), isWritten);
    }
    void rewind()
    {
        setActive(m_before);
        for (const auto& [field, edit] : m_edits) {
            edit->close();
            edit->undo();
        }
    }

private:
    void watch(const SoField& field)
    {
        SoFieldContainer* container = field.getContainer();
        m_containers.insert(container);
        // A node that nobody refers to may be on the stack.
        if (container->getRefCount() == 0)
            m_hasUnknown = true;
        else if (m_counts.emplace(&field, field.getChangeCount()).second)
            m_kept.emplace_back(container);
    }

    const std::map<SoField*, std::unique_ptr<FieldEdit>>& m_fields;
    SoWriteRecorder* m_before;
    std::map<const SoField*, std::uint32_t> m_counts;
    std::vector<SoRef<SoFieldContainer>> m_kept;
    bool m_hasUnknown = false;
    std::map<SoField*, std::unique_ptr<FieldEdit>> m_edits;
    std::set<const SoFieldContainer*> m_containers;
};

} // namespace

UndoStep::UndoStep(UndoHistory& history, UndoHistory::CommandContext context)
    : m_history(history)
    , m_context(std::move(context))
{
}

UndoStep::~UndoStep() = default;

FieldEdit& UndoStep::editOf(SoField& field)
{
    m_isStale = true;
    auto& edit = m_edits[&field];
    if (!edit)
        edit = std::make_unique<FieldEdit>(field);
    return *edit;
}

void UndoStep::aboutToWrite(SoField& field, int start, int removed)
{
    m_touched.insert(field.getContainer());
    editOf(field).aboutToWrite(start, removed);
}

void UndoStep::aboutToWriteInCommand(SoField& field, int start, int removed)
{
    m_commandWrote = true;
    if (m_touched.insert(field.getContainer()).second)
        m_newInCommand.insert(field.getContainer());
    if (m_edits.count(&field) == 0)
        m_foundInCommand.insert(&field);
    aboutToWrite(field, start, removed);
}

void UndoStep::tellConnections(const SpxCommand& command) const
{
    const auto* told = dynamic_cast<const SpxEditedConnections*>(&command);
    if (!told || !m_history.m_watch)
        return;
    for (SoField* field : told->connectedFields())
        m_history.m_watch->aboutToConnect(*field);
}

void UndoStep::add(std::unique_ptr<SpxCommand> command, UndoHistory::CommandContext context, bool isSeen)
{
    forgetUnchanged();
    noteTouched(*command, context);
    const bool isWithoutMore = isSeenWhole(*command, isSeen);
    m_commands.push_back({std::move(command), m_commandWrote, isWithoutMore});
    m_commandWrote = false;
    m_isStale = true;
    m_context.text = std::move(context.text);
}

// A command may write what its maker has written already: where it changed nothing, what the field held
// before is not known.
void UndoStep::forgetUnchanged()
{
    for (SoField* field : m_foundInCommand) {
        const auto found = m_edits.find(field);
        found->second->compare();
        if (found->second->isNothing())
            m_edits.erase(found);
    }
    m_foundInCommand.clear();
    m_newInCommand.clear();
}

void UndoStep::letGo(const SoFieldContainer* container)
{
    if (m_newInCommand.erase(container) == 0)
        return;
    m_touched.erase(container);
    for (auto at = m_edits.begin(); at != m_edits.end();) {
        const bool isOf = at->first->getContainer() == container;
        if (isOf)
            m_foundInCommand.erase(at->first);
        at = isOf ? m_edits.erase(at) : std::next(at);
    }
}

void UndoStep::noteTouched(const SpxCommand& command, const UndoHistory::CommandContext& context)
{
    const auto* told = dynamic_cast<const SpxEditedFields*>(&command);
    if (told) {
        for (const SoField* field : told->editedFields())
            m_touched.insert(field->getContainer());
        for (const SoFieldContainer* container : told->editedContainers())
            m_touched.insert(container);
        m_touched.erase(nullptr);
    }
    if (told || m_commandWrote || !m_edits.empty())
        return;
    m_mayTouchAnything |= context.touched.empty();
    m_touched.insert(context.touched.begin(), context.touched.end());
}

bool UndoStep::isSeenWhole(const SpxCommand& command, bool isSeen) const
{
    const auto* told = dynamic_cast<const SpxEditedFields*>(&command);
    if (told && told->isWithoutEffect())
        return true;
    const auto* connecting = dynamic_cast<const SpxEditedConnections*>(&command);
    if (!isSeen || m_edits.empty() || (connecting && !connecting->connectedFields().empty()))
        return false;
    if (!told)
        return true;
    const auto fields = told->editedFields();
    const auto isWatched = [this](SoField* field) { return m_edits.count(field) > 0; };
    return told->editedContainers().empty() && std::all_of(fields.begin(), fields.end(), isWatched);
}

void UndoStep::compare()
{
    for (const auto& [field, edit] : m_edits)
        edit->compare();
    m_isStale = false;
}

bool UndoStep::completeLater(SoField& field)
{
    const auto found = m_edits.find(&field);
    if (found == m_edits.end())
        return false;
    found->second->completeLater();
    return true;
}

bool UndoStep::isNothing() const
{
    const auto isUnchanged = [](const auto& each) { return each.second->isNothing(); };
    const auto isWithoutMore = [](const Command& each) { return each.isWithoutMore; };
    return std::all_of(m_edits.begin(), m_edits.end(), isUnchanged) &&
           std::all_of(m_commands.begin(), m_commands.end(), isWithoutMore);
}

void UndoStep::close()
{
    m_bytes = sizeof(*this) + m_commands.size() * CommandBytes;
    for (const auto& [field, edit] : m_edits) {
        edit->close();
        m_bytes += edit->bytes();
    }
}

bool UndoStep::undo(QString& reason)
{
    run(Direction::Undo, reason);
    return reason.isEmpty();
}

bool UndoStep::redo(QString& reason)
{
    run(Direction::Redo, reason);
    return reason.isEmpty();
}

void UndoStep::run(Direction direction, QString& reason)
{
    const QScopedValueRollback<bool> running(m_running, true);
    reason = runCommands(direction);
    if (m_dropped)
        reason.clear(); // its end is told elsewhere
    else if (!restoreFields(direction) && reason.isEmpty())
        reason = UndoHistory::tr("the list has another length by now");
}

QString UndoStep::runCommands(Direction direction)
{
    QString reason;
    const auto count = m_commands.size();
    for (std::size_t i = 0; i < count && !m_dropped && reason.isEmpty(); ++i)
        reason = runCommand(m_commands[direction == Direction::Undo ? count - 1 - i : i], direction);
    return reason;
}

QString UndoStep::runCommand(Command& command, Direction direction)
{
    Rewinder written(m_edits);
    tellConnections(*command.command);
    const QString failure = catchExceptions(
        [&] { direction == Direction::Undo ? command.command->undo() : command.command->redo(); });
    if (m_dropped)
        return {};
    m_touched.insert(written.containers().begin(), written.containers().end());
    // A field that refuses a text says so to the command alone.
    const bool isRefused = command.wrote && m_edits.empty() && !written.hasWritten();
    written.rewind();
    if (failure.isEmpty() && isRefused)
        return UndoHistory::tr("nothing could be written");
    return failure;
}

bool UndoStep::restoreFields(Direction direction)
{
    bool isDone = true;
    for (const auto& [field, edit] : m_edits) {
        if (m_dropped)
            return true; // with a node that a value of another one held
        isDone = (direction == Direction::Undo ? edit->undo() : edit->redo()) && isDone;
    }
    return isDone;
}

void UndoStep::collectFields(std::set<SoField*>& fields) const
{
    for (const auto& [field, edit] : m_edits) {
        if (!edit->isNothing())
            fields.insert(field);
    }
}

void UndoStep::writeFields(const std::set<SoField*>& fields, bool undoes) const
{
    for (const auto& [field, edit] : m_edits) {
        if (fields.count(field) > 0)
            undoes ? edit->undo() : edit->redo();
    }
}

bool UndoStep::touches(const SoFieldContainer* container) const
{
    return m_mayTouchAnything || m_touched.count(container) > 0;
}

void UndoStep::drop()
{
    m_dropped = true;
    if (m_running)
        return;
    m_commands.clear();
    m_edits.clear();
}

const FieldEdit* UndoStep::firstChange() const
{
    const auto isChanged = [](const auto& each) { return !each.second->isNothing(); };
    const auto found = std::find_if(m_edits.begin(), m_edits.end(), isChanged);
    return found == m_edits.end() ? nullptr : found->second.get();
}

QString UndoStep::text() const
{
    const FieldEdit* change = firstChange();
    if (!change)
        return m_context.text;
    const SoFieldContainer* node = change->field().getContainer();
    const QString text = nodeText(*node) + QLatin1Char('.') + change->text();
    std::set<const SoFieldContainer*> nodes;
    for (const auto& [field, edit] : m_edits) {
        if (!edit->isNothing())
            nodes.insert(field->getContainer());
    }
    return nodes.size() > 1 ? UndoHistory::tr("%1, and in %L2 more").arg(text).arg(nodes.size() - 1) : text;
}

UndoEntry::UndoEntry(UndoHistory& history, std::shared_ptr<UndoStep> step)
    : QUndoCommand(step->text())
    , m_history(history)
    , m_step(std::move(step))
{
}

UndoEntry::~UndoEntry()
{
    m_history.releaseLater(std::move(m_step));
}

void UndoEntry::undo()
{
    const std::shared_ptr<UndoStep> step = m_step;
    m_history.run(*step, true);
}

void UndoEntry::redo()
{
    const std::shared_ptr<UndoStep> step = m_step;
    if (std::exchange(m_taken, true))
        m_history.run(*step, false);
}

} // namespace scopix
