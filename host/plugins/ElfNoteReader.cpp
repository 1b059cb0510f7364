// SPDX-License-Identifier: MIT
#include "plugins/ElfNoteReader.h"

#include <link.h>

#include <cstring>

namespace scopix
{

ElfNoteReader::ElfNoteReader(const QByteArray& notes, quint64 alignment)
    : m_notes(notes)
    , m_alignment(alignment == 8 ? 8 : 4)
{
}

quint64 ElfNoteReader::filledUp(quint64 size) const
{
    return (size + m_alignment - 1) / m_alignment * m_alignment;
}

// The filling behind the last content may be missing.
std::optional<ElfNote> ElfNoteReader::take()
{
    const quint64 left = quint64(m_notes.size()) - m_next;
    ElfW(Nhdr) header;
    if (isAtEnd() || left < sizeof(header))
        return {};
    std::memcpy(&header, m_notes.constData() + m_next, sizeof(header));
    const quint64 content = filledUp(sizeof(header) + quint64(header.n_namesz));
    if (content > left || header.n_descsz > left - content)
        return {};
    const int start = int(m_next);
    m_next += filledUp(content + header.n_descsz);
    return ElfNote{m_notes.mid(start + int(sizeof(header)), int(header.n_namesz)),
                   m_notes.mid(start + int(content), int(header.n_descsz)), header.n_type};
}

} // namespace scopix
