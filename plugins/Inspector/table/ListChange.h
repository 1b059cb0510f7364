// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <scopix/editing/SpxFieldPointer.h>
#include <xsg/core/SoMField.h>

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

namespace inspector
{

/// Values that are replaced by others, at their place in the list before the change.
struct RowRun {
    int start = 0;
    int removed = 0;
    int inserted = 0;
};

/// What changes in a list: runs of values, with their old and their new content and nothing of the rest. All
/// that returns a bool says whether there was memory for it.
class ListChange
{
public:
    explicit ListChange(const SoMField& list);
    ListChange(ListChange&&) = default;
    ListChange& operator=(ListChange&&) = default;

    /// Runs come in ascending order, and do not touch. The new values are the old ones at first, and the
    /// type's initial value beyond them.
    bool add(const SoMField& list, const RowRun& run);
    /// As add(), with `run.inserted` values of `from` as the new ones.
    bool add(const SoMField& list, const RowRun& run, const SoMField& from, int fromStart);

    const std::vector<RowRun>& runs() const { return m_runs; }
    /// The new values, one run after the other, to be written before the change is applied.
    SoMField& after() { return *m_after; }
    const SoMField& before() const { return *m_before; }
    bool isEmpty() const { return m_runs.empty(); }

    bool apply(SoMField& list) const;
    bool revert(SoMField& list) const;
    /// The first row that differs after apply(), or after revert(), and how many they are at least.
    RowRun firstRun() const { return m_runs.front(); }

private:
    struct Place {
        int start;
        int removed;
        int inserted;
    };
    static bool replace(SoMField& list, const std::vector<Place>& places, const SoMField& from);
    static bool replaceEach(SoMField& list, const std::vector<Place>& places, const SoMField& from);
    static bool replaceAtOnce(SoMField& list, const std::vector<Place>& places, const SoMField& from);

    std::vector<RowRun> m_runs;
    std::unique_ptr<SoMField> m_before;
    std::unique_ptr<SoMField> m_after;
};

/// Hears where an undone or repeated change acted.
class ListChangeObserver : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    void acted(const SoField* list, int first, int count);
};

/// Records a change of a list. It keeps what changed and not the list, and nothing of the node; once that is
/// destroyed, it does nothing.
class ListChangeCommand : public SpxCommand, public SpxEditedFields
{
public:
    ListChangeCommand(SoMField& list, ListChange change, ListChangeObserver* observer);

    /// The first time.
    bool write() const;
    void execute() override {}
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override;

private:
    SoMField* list() const;
    void report(int count) const;

    SpxFieldPointer m_list;
    ListChange m_change;
    QPointer<ListChangeObserver> m_observer;
    bool m_wasDefault;
};

} // namespace inspector
