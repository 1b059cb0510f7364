// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>
#include <vector>

class SoField;
class SoFieldContainer;

namespace scopix
{

class UndoStep;

/// The steps of a scene that is not edited at present, as UndoHistory::shelve() took them off the stack.
/// GUI thread only.
class UndoShelf
{
public:
    /// What is there is what was saved.
    bool isClean() const { return m_clean == m_index; }

private:
    friend class UndoHistory;
    using Steps = std::vector<std::shared_ptr<UndoStep>>;

    void completeLast(SoField& field) const;
    /// How many steps were dropped.
    int forget(const SoFieldContainer* container) const;

    Steps m_steps;
    int m_index = 0;
    int m_clean = 0; // -1: no step leads back to what was saved
    bool m_hasDroppedOld = false;
    quint64 m_number = 0;
};

} // namespace scopix
