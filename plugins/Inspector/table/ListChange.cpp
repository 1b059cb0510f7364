// SPDX-License-Identifier: MIT
#include "table/ListChange.h"

#include <algorithm>

namespace inspector
{

namespace
{

// Beyond it one long write is quicker than a write for each run.
constexpr std::size_t MostWrites = 64;

bool append(SoMField& to, const SoMField& from, int start, int count)
{
    return to.replaceValues(to.getNum(), 0, from, start, count);
}

} // namespace

ListChange::ListChange(const SoMField& list)
    : m_before(list.makeSlice())
    , m_after(list.makeSlice())
{
}

bool ListChange::add(const SoMField& list, const RowRun& run)
{
    const int kept = std::min(run.removed, run.inserted);
    if (!add(list, {run.start, run.removed, kept}, list, run.start))
        return false;
    const int wanted = m_after->getNum() + run.inserted - kept;
    if (run.inserted > kept)
        m_after->setNum(wanted);
    m_runs.back().inserted = run.inserted;
    return m_after->getNum() == wanted;
}

bool ListChange::add(const SoMField& list, const RowRun& run, const SoMField& from, int fromStart)
{
    if (!m_before || !m_after)
        return false;
    m_runs.push_back(run);
    return append(*m_before, list, run.start, run.removed) && append(*m_after, from, fromStart, run.inserted);
}

bool ListChange::apply(SoMField& list) const
{
    std::vector<Place> places;
    for (const RowRun& run : m_runs)
        places.push_back({run.start, run.removed, run.inserted});
    return replace(list, places, *m_after);
}

bool ListChange::revert(SoMField& list) const
{
    std::vector<Place> places;
    int shift = 0;
    for (const RowRun& run : m_runs) {
        places.push_back({run.start + shift, run.inserted, run.removed});
        shift += run.inserted - run.removed;
    }
    return replace(list, places, *m_before);
}

bool ListChange::replace(SoMField& list, const std::vector<Place>& places, const SoMField& from)
{
    return places.size() <= MostWrites ? replaceEach(list, places, from) : replaceAtOnce(list, places, from);
}

// From the last run to the first, so that the places of those before it stay.
bool ListChange::replaceEach(SoMField& list, const std::vector<Place>& places, const SoMField& from)
{
    int end = from.getNum();
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        end -= place->inserted;
        if (!list.replaceValues(place->start, place->removed, from, end, place->inserted))
            return false;
    }
    return true;
}

bool ListChange::replaceAtOnce(SoMField& list, const std::vector<Place>& places, const SoMField& from)
{
    const std::unique_ptr<SoMField> whole = list.makeSlice();
    const int first = places.front().start;
    int read = first;
    int taken = 0;
    for (const Place& place : places) {
        if (!append(*whole, list, read, place.start - read) || !append(*whole, from, taken, place.inserted))
            return false;
        read = place.start + place.removed;
        taken += place.inserted;
    }
    return list.replaceValues(first, read - first, *whole, 0, whole->getNum());
}

ListChangeCommand::ListChangeCommand(SoMField& list, ListChange change, ListChangeObserver* observer)
    : m_list(&list)
    , m_change(std::move(change))
    , m_observer(observer)
    , m_wasDefault(list.isDefault())
{
}

SoMField* ListChangeCommand::list() const
{
    return static_cast<SoMField*>(m_list.get());
}

bool ListChangeCommand::write() const
{
    return m_change.apply(*list());
}

void ListChangeCommand::undo()
{
    if (!list() || !m_change.revert(*list()))
        return;
    list()->setDefault(m_wasDefault);
    report(m_change.firstRun().removed);
}

void ListChangeCommand::redo()
{
    if (list() && m_change.apply(*list()))
        report(m_change.firstRun().inserted);
}

std::vector<SoField*> ListChangeCommand::editedFields() const
{
    return list() ? std::vector<SoField*>{list()} : std::vector<SoField*>();
}

void ListChangeCommand::report(int count) const
{
    if (m_observer)
        emit m_observer->acted(m_list.get(), m_change.firstRun().start, count);
}

} // namespace inspector
