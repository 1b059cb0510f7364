// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace scopix
{

struct ElfNote {
    QByteArray owner; // with the NUL at its end
    QByteArray content;
    quint32 type;
};

/// Takes the notes of an ELF segment one by one. They lie one behind the other, each part filled up to the
/// segment's alignment.
class ElfNoteReader
{
public:
    /// The bytes must outlive this.
    ElfNoteReader(const QByteArray& notes, quint64 alignment);

    bool isAtEnd() const { return m_next >= quint64(m_notes.size()); }
    /// Nothing where what follows is no whole note; reading cannot go on then.
    std::optional<ElfNote> take();

private:
    quint64 filledUp(quint64 size) const;

    const QByteArray& m_notes;
    quint64 m_alignment;
    quint64 m_next = 0;
};

} // namespace scopix
