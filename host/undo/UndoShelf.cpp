// SPDX-License-Identifier: MIT
#include "undo/UndoShelf.h"

#include "undo/UndoHistory.h"
#include "undo/UndoStep.h"

#include <algorithm>

namespace scopix
{

void UndoShelf::completeLast(SoField& field) const
{
    for (int i = m_index - 1; i >= 0; --i) {
        UndoStep& step = *m_steps[static_cast<std::size_t>(i)];
        if (!step.completeLater(field))
            continue;
        if (step.isNothing())
            step.drop();
        return;
    }
}

int UndoShelf::forget(const SoFieldContainer* container) const
{
    return static_cast<int>(std::count_if(m_steps.begin(), m_steps.end(), [container](const auto& step) {
        const bool isMeant = !step->isDropped() && step->touches(container);
        if (isMeant)
            step->drop();
        return isMeant;
    }));
}

// --- The shelf and the stack

std::shared_ptr<UndoShelf> UndoHistory::shelve()
{
    if (!m_deferred.empty())
        recordDeferred();
    goBackToHeld();
    endStep();
    restackWithoutDropped();
    auto shelf = std::make_shared<UndoShelf>();
    shelf->m_steps = steps();
    shelf->m_index = m_stack.index();
    shelf->m_clean = m_stack.cleanIndex();
    shelf->m_hasDroppedOld = std::exchange(m_hasDroppedOld, false);
    shelf->m_number = std::exchange(m_number, ++m_lastNumber);
    const auto isGone = [](const std::weak_ptr<UndoShelf>& each) { return each.expired(); };
    m_shelves.erase(std::remove_if(m_shelves.begin(), m_shelves.end(), isGone), m_shelves.end());
    m_shelves.push_back(shelf);
    restack({}, 0, 0);
    return shelf;
}

void UndoHistory::unshelve(const std::shared_ptr<UndoShelf>& shelf)
{
    clear();
    m_hasDroppedOld = shelf->m_hasDroppedOld;
    m_number = shelf->m_number;
    restack(std::exchange(shelf->m_steps, {}), shelf->m_index, shelf->m_clean);
    restackWithoutDropped();
}

// Those that still have an owner.
std::vector<std::shared_ptr<UndoShelf>> UndoHistory::findShelves() const
{
    std::vector<std::shared_ptr<UndoShelf>> found;
    for (const std::weak_ptr<UndoShelf>& each : m_shelves) {
        if (auto shelf = each.lock())
            found.push_back(std::move(shelf));
    }
    return found;
}

void UndoHistory::completeShelved(SoField& field)
{
    for (const auto& shelf : findShelves())
        shelf->completeLast(field);
}

int UndoHistory::dropShelved(const SoFieldContainer* container)
{
    int count = 0;
    for (const auto& shelf : findShelves())
        count += shelf->forget(container);
    return count;
}

void UndoHistory::clearAll()
{
    clear();
    for (const auto& shelf : findShelves()) {
        const UndoShelf::Steps before = std::exchange(shelf->m_steps, {});
        shelf->m_clean = shelf->isClean() ? 0 : -1;
        shelf->m_index = 0;
    }
}

} // namespace scopix
