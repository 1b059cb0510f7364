// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QString>
#include <QVariant>

class SoNode;

/// Knows something of nodes that the scene tree can show beside their names, a column for each: derive an
/// extension or a member of one from it, and add it. It is asked for what is in sight, so that it has to
/// answer at once. GUI thread only.
class SPX_API SpxTreeColumnProvider
{
public:
    SpxTreeColumnProvider();
    SpxTreeColumnProvider(const SpxTreeColumnProvider&) = delete;
    SpxTreeColumnProvider& operator=(const SpxTreeColumnProvider&) = delete;
    /// Removes itself where it was added.
    virtual ~SpxTreeColumnProvider();

    /// The number and what belongs to a number stay the same from addColumns() to removeColumns().
    virtual int getNumColumns() const = 0;
    /// A short name by which the host remembers whether the user wants the column, as in "cost.time".
    virtual QString getColumnKey(int column) const = 0;
    /// For the user, with the unit, as in "Time, ms".
    virtual QString getColumnCaption(int column) const = 0;
    /// Whether it is shown before the user has said anything.
    virtual bool isColumnShownAtFirst(int column) const = 0;
    /// A number or a text, which the column can be sorted by; an invalid one where nothing is known.
    virtual QVariant getColumnValue(int column, const SoNode& node) const = 0;
};

/// What a host may offer beyond SpxShell: further columns in its scene tree. The user shows and hides them,
/// and sorts by them, as by the tree's own. GUI thread only.
class SPX_API SpxTreeColumns
{
public:
    /// Null where the host does not offer this.
    static SpxTreeColumns* getInstance();

    SpxTreeColumns(const SpxTreeColumns&) = delete;
    SpxTreeColumns& operator=(const SpxTreeColumns&) = delete;

    /// Not owned; once only, however often it is added. Behind the columns that are there.
    virtual void addColumns(SpxTreeColumnProvider* provider) = 0;
    virtual void removeColumns(SpxTreeColumnProvider* provider) = 0;
    /// The values are others now.
    virtual void updateColumns(SpxTreeColumnProvider* provider) = 0;

protected:
    SpxTreeColumns() = default;
    virtual ~SpxTreeColumns();
};
