// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <link.h>

#include <optional>
#include <vector>

class QIODevice;

namespace scopix
{

/// The headers and notes of a shared library, read from the file without loading it. Takes no byte of the
/// file on trust: what lies outside of the file, overflows or is larger than any real library has it is an
/// error and is never read. Files of another word size, byte order or processor are refused, which leaves the
/// reader with the structures of <elf.h> for this process's own kind. Needs no thread in particular.
///
/// Written here because it is two loops over fixed structures; libelf would be one more package to install,
/// and dlopen() has no way of looking before it runs the library's initialisers.
class ElfFile
{
public:
    /// The device must be open, allow seeking and outlive this.
    explicit ElfFile(QIODevice& device);

    /// Empty when the file is a whole library for this kind of machine; else what it is instead, as the end
    /// of a sentence about "it".
    const QString& error() const { return m_error; }

    /// The content of the first note of this owner and type. Nothing when there is none; sets error() when
    /// the notes are damaged.
    std::optional<QByteArray> findNote(const QByteArray& owner, quint32 type);

private:
    using Header = ElfW(Ehdr);
    using Segment = ElfW(Phdr);
    using Section = ElfW(Shdr);

    QString readHeader();
    QString readSegments();
    QString checkKind(const QByteArray& identity) const;
    bool isWhole() const;
    bool hasSectionNames() const;
    bool isLoadable() const;
    bool contains(quint64 offset, quint64 size) const;
    std::optional<QByteArray> findNoteIn(const QByteArray& notes, quint64 alignment, const QByteArray& owner,
                                         quint32 type);
    std::optional<QByteArray> read(quint64 offset, quint64 size) const;

    QIODevice& m_device;
    quint64 m_size;
    QString m_error;
    Header m_header{};
    std::vector<Segment> m_segments;
};

} // namespace scopix
