// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/files/NodeNotes.h>
#include <xsg/support/WorkPieces.h>

#include <cstdint>

namespace xsg
{

/// A number for the content of a branch: equal ones have equal numbers, and others hardly ever. Asked for
/// seldom, it is computed when it is first needed. The scene must stay as it is.
class BranchHash
{
public:
    explicit BranchHash(WorkPieces& pieces)
        : m_pieces(pieces)
    {
    }

    std::uint64_t of(SoNode* node);
    /// Without the name of the node itself.
    std::uint64_t ofContent(SoNode* node);

private:
    struct Note {
        std::uint64_t whole = 0;
        std::uint64_t content = 0;
        bool isKnown = false;
    };
    void compute(SoNode* node);

    WorkPieces& m_pieces;
    NodeNotes<Note> m_notes;
};

} // namespace xsg
