// SPDX-License-Identifier: MIT
#include "plugins/ElfFile.h"

#include "plugins/ElfNoteReader.h"
#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QIODevice>

#include <elf.h>

#include <algorithm>
#include <cstring>

namespace scopix
{

namespace
{

// Far above what any linker writes, and little enough to read at once.
constexpr quint64 MaximumNotes = 1 << 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("ElfFile", text);
}

QString truncated()
{
    return tr("the file is incomplete");
}

QString damagedNotes()
{
    return tr("its notes are damaged");
}

template <class Struct>
Struct structAt(const QByteArray& bytes, qsizetype offset)
{
    Struct result;
    std::memcpy(&result, bytes.constData() + offset, sizeof(Struct));
    return result;
}

QString machineName(unsigned machine)
{
    switch (machine) {
    case EM_386:
        return QStringLiteral("x86");
    case EM_X86_64:
        return QStringLiteral("x86-64");
    case EM_ARM:
        return QStringLiteral("ARM");
    case EM_AARCH64:
        return QStringLiteral("AArch64");
    case EM_RISCV:
        return QStringLiteral("RISC-V");
    default:
        return tr("machine type %1").arg(machine);
    }
}

QString notForThisMachine(unsigned machine)
{
    return tr("it was built for another kind of machine (%1), this program runs on %2")
        .arg(machineName(machine), machineName(OwnLibrary::header().e_machine));
}

} // namespace

ElfFile::ElfFile(QIODevice& device)
    : m_device(device)
    , m_size(quint64(device.size()))
{
    m_error = readHeader();
    if (m_error.isEmpty())
        m_error = readSegments();
}

QString ElfFile::checkKind(const QByteArray& identity) const
{
    if (identity.left(SELFMAG) != QByteArray(ELFMAG, SELFMAG).left(identity.size()) || identity.isEmpty())
        return tr("it is no library (no ELF file)");
    if (identity.size() < EI_NIDENT)
        return truncated();
    const auto& own = OwnLibrary::header().e_ident;
    if (identity[EI_CLASS] != char(own[EI_CLASS]))
        return tr("it was built for another kind of machine (another word size)");
    if (identity[EI_DATA] != char(own[EI_DATA]))
        return tr("it was built for another kind of machine (another byte order)");
    return {};
}

QString ElfFile::readHeader()
{
    const QString kind = checkKind(read(0, std::min<quint64>(m_size, EI_NIDENT)).value_or(QByteArray()));
    if (!kind.isEmpty())
        return kind;
    const auto bytes = read(0, sizeof(m_header));
    if (!bytes)
        return truncated();
    m_header = structAt<Header>(*bytes, 0);
    if (m_header.e_machine != OwnLibrary::header().e_machine)
        return notForThisMachine(m_header.e_machine);
    if (m_header.e_type != ET_DYN)
        return tr("it is no library (an ELF file of another type)");
    return {};
}

QString ElfFile::readSegments()
{
    if (m_header.e_phentsize != sizeof(Segment) || m_header.e_phnum == 0)
        return tr("it is no library (its header is damaged)");
    const auto table = read(m_header.e_phoff, quint64(m_header.e_phnum) * sizeof(Segment));
    if (!table)
        return truncated();
    for (int i = 0; i < m_header.e_phnum; ++i)
        m_segments.push_back(structAt<Segment>(*table, i * int(sizeof(Segment))));
    if (!isWhole())
        return truncated();
    return isLoadable() ? QString() : tr("it is no library (its header is damaged)");
}

// The section table is the last thing in a file, so it shows best that the end is missing, or is still zeros
// where the room for a copy was taken before its content came.
bool ElfFile::isWhole() const
{
    const auto inFile = [this](const Segment& segment) {
        return contains(segment.p_offset, segment.p_filesz);
    };
    return std::all_of(m_segments.begin(), m_segments.end(), inFile) && hasSectionNames();
}

bool ElfFile::hasSectionNames() const
{
    if (m_header.e_shnum == 0)
        return true; // stripped of them, which loading does not need
    const quint64 size = quint64(m_header.e_shnum) * m_header.e_shentsize;
    if (m_header.e_shentsize != sizeof(Section) || m_header.e_shstrndx >= m_header.e_shnum ||
        !contains(m_header.e_shoff, size))
        return false;
    const auto bytes =
        read(m_header.e_shoff + quint64(m_header.e_shstrndx) * sizeof(Section), sizeof(Section));
    const Section names = bytes ? structAt<Section>(*bytes, 0) : Section{};
    return names.sh_type == SHT_STRTAB && contains(names.sh_offset, names.sh_size);
}

// What the dynamic linker takes for granted.
bool ElfFile::isLoadable() const
{
    return std::all_of(m_segments.begin(), m_segments.end(), [](const Segment& segment) {
        return segment.p_type != PT_LOAD || segment.p_filesz <= segment.p_memsz;
    });
}

bool ElfFile::contains(quint64 offset, quint64 size) const
{
    return offset <= m_size && size <= m_size - offset;
}

std::optional<QByteArray> ElfFile::read(quint64 offset, quint64 size) const
{
    if (!contains(offset, size) || !m_device.seek(qint64(offset)))
        return {};
    QByteArray bytes = m_device.read(qint64(size));
    if (quint64(bytes.size()) != size)
        return {};
    return bytes;
}

std::optional<QByteArray> ElfFile::findNote(const QByteArray& owner, quint32 type)
{
    quint64 readable = MaximumNotes;
    for (const Segment& segment : m_segments) {
        if (segment.p_type != PT_NOTE || !m_error.isEmpty())
            continue;
        const auto notes =
            segment.p_filesz <= readable ? read(segment.p_offset, segment.p_filesz) : std::nullopt;
        readable -= notes ? segment.p_filesz : 0;
        const auto content = notes ? findNoteIn(*notes, segment.p_align, owner + '\0', type) : std::nullopt;
        if (content)
            return content;
        if (!notes)
            m_error = damagedNotes();
    }
    return {};
}

std::optional<QByteArray> ElfFile::findNoteIn(const QByteArray& notes, quint64 alignment,
                                              const QByteArray& owner, quint32 type)
{
    ElfNoteReader reader(notes, alignment);
    while (!reader.isAtEnd()) {
        const auto note = reader.take();
        if (!note) {
            m_error = damagedNotes();
            return {};
        }
        if (note->owner == owner && note->type == type)
            return note->content;
    }
    return {};
}

} // namespace scopix
