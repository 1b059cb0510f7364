// SPDX-License-Identifier: MIT
// What the host reads in a plug-in's file before it loads it.
#include "PluginParts.h"

#include "plugins/PluginNote.h"

#include <scopix/SpxPluginNote.h>

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>

#include <elf.h>

#include <cstring>

using namespace scopix;

namespace
{

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

std::string whyNot(QByteArray& library)
{
    QBuffer buffer(&library);
    buffer.open(QIODevice::ReadOnly);
    return whyNotLoadable(buffer).toStdString();
}

std::string whyNot(const QByteArray& library)
{
    QByteArray copy = library;
    return whyNot(copy);
}

template <class Struct>
void put(QByteArray& bytes, std::size_t offset, const Struct& value)
{
    std::memcpy(bytes.data() + offset, &value, sizeof(value));
}

QByteArray note(const QByteArray& owner, const QByteArray& content)
{
    Elf64_Nhdr header{};
    header.n_namesz = Elf64_Word(owner.size() + 1);
    header.n_descsz = Elf64_Word(content.size());
    header.n_type = 1;
    QByteArray bytes(sizeof(header), '\0');
    put(bytes, 0, header);
    for (const QByteArray& part : {owner + '\0', content})
        bytes += part + QByteArray((4 - part.size() % 4) % 4, '\0');
    return bytes;
}

// The header of a real library, with these segments of notes, all of them over the same bytes.
QByteArray libraryWithNotes(const QByteArray& notes, int segments = 1)
{
    QByteArray bytes = contentOf(testPlugin("Good")).left(sizeof(Elf64_Ehdr));
    Elf64_Ehdr header;
    std::memcpy(&header, bytes.constData(), sizeof(header));
    header.e_phoff = sizeof(header);
    header.e_phnum = Elf64_Half(segments);
    header.e_shoff = 0;
    header.e_shnum = 0;
    put(bytes, 0, header);
    Elf64_Phdr segment{};
    segment.p_type = PT_NOTE;
    segment.p_offset = sizeof(header) + std::size_t(segments) * sizeof(segment);
    segment.p_filesz = Elf64_Xword(notes.size());
    segment.p_align = 4;
    const QByteArray table(reinterpret_cast<const char*>(&segment), sizeof(segment));
    return bytes + table.repeated(segments) + notes;
}

std::string whyUnfit(const char* text)
{
    const PluginNote host = PluginNote::parse("contract=1.2\nqt=5.15.8\ncxx=libstdc++\n");
    return PluginNote::parse(text).whyUnfitFor(host).toStdString();
}

} // namespace

TEST(PluginNote, ThePluginsHereFitThisHost)
{
    EXPECT_EQ(whyNot(contentOf(testPlugin("Good"))), "");
    EXPECT_EQ(whyNot(contentOf(SCOPIX_PLUGIN)), "");
    EXPECT_EQ(PluginNote::parse(SPX_PLUGIN_NOTE_TEXT("Name", "1.2.3")).value("version"), "1.2.3");
    EXPECT_EQ(PluginNote::ofHost().value("contract"), SPX_CONTRACT_VERSION);
}

TEST(PluginNote, LoadsAPluginWithoutNoteUnchecked)
{
    EXPECT_EQ(whyNot(contentOf(testPlugin("Other"))), "");
    EXPECT_EQ(whyNot(libraryWithNotes(note("Other", "contract=9.0\n"))), "");
}

TEST(PluginNote, IsFoundBehindOtherNotes)
{
    const QByteArray others = note("GNU", "12345") + note("Scopi", "contract=8.0\n") + note("", "");
    EXPECT_EQ(whyNot(libraryWithNotes(others + note("Scopix", "contract=9.0\n"))),
              "it was made for version 9 of the plug-in interface, this program has version " +
                  std::string(SPX_CONTRACT_VERSION).substr(0, std::string(SPX_CONTRACT_VERSION).find('.')));
}

TEST(PluginNote, ReportsWhatDoesNotFit)
{
    EXPECT_EQ(whyUnfit("contract=1.2\nqt=5.15.0\ncxx=libstdc++\n"), "");
    EXPECT_EQ(whyUnfit("contract=1.0\nqt=5.6.1\ncxx=libstdc++\nlater=x\n"), "");
    EXPECT_EQ(whyUnfit("contract=2.0\nqt=5.15.0\ncxx=libstdc++\n"),
              "it was made for version 2 of the plug-in interface, this program has version 1");
    EXPECT_EQ(whyUnfit("contract=1.3\nqt=5.15.0\ncxx=libstdc++\n"),
              "it was made for version 1.3 of the plug-in interface, this program has version 1.2");
    EXPECT_EQ(whyUnfit("contract=1.2\nqt=6.4.2\ncxx=libstdc++\n"),
              "it was made for Qt 6, this program runs with Qt 5");
    EXPECT_EQ(whyUnfit("contract=1.2\nqt=5.15.0\ncxx=libc++\n"),
              "it was made for the C++ library libc++, this program uses libstdc++");
    EXPECT_EQ(whyUnfit("no word of a contract"), "its version note is damaged");
    EXPECT_EQ(whyUnfit("contract=one\n"), "its version note is damaged");
    EXPECT_EQ(whyUnfit(""), "its version note is damaged");
}

TEST(PluginNote, ItsTextCannotBreakTheSentence)
{
    const std::string why =
        whyUnfit("contract=1.2\nqt=5.15.0\ncxx=\x1b[2J\r\x07many%1words%2and more of them\n");
    EXPECT_EQ(why.find_first_of("\x1b\r\x07"), std::string::npos) << why;
}

TEST(PluginFile, OfAnotherKindIsRefused)
{
    const QByteArray good = contentOf(testPlugin("Good"));
    const auto with = [&good](int place, char value) {
        QByteArray changed = good;
        changed[place] = value;
        return whyNot(changed);
    };
    EXPECT_EQ(whyNot(QByteArray()), "it is no library (no ELF file)");
    EXPECT_EQ(whyNot(QByteArray("#!/bin/sh\n")), "it is no library (no ELF file)");
    EXPECT_EQ(with(EI_MAG1, 'e'), "it is no library (no ELF file)");
    EXPECT_EQ(with(EI_CLASS, ELFCLASS32), "it was built for another kind of machine (another word size)");
    EXPECT_EQ(with(EI_DATA, ELFDATA2MSB), "it was built for another kind of machine (another byte order)");
    const std::string machine = with(offsetof(Elf64_Ehdr, e_machine), char(EM_RISCV));
    EXPECT_NE(machine.find("another kind of machine (RISC-V), this program runs on "), std::string::npos)
        << machine;
    EXPECT_EQ(with(offsetof(Elf64_Ehdr, e_type), ET_REL), "it is no library (an ELF file of another type)");
    EXPECT_EQ(with(offsetof(Elf64_Ehdr, e_phentsize), 1), "it is no library (its header is damaged)");
}

TEST(PluginFile, IsRefusedWhereverItIsCutOff)
{
    const QByteArray good = contentOf(testPlugin("Good"));
    int size = 0;
    for (; size < 2000; ++size)
        ASSERT_NE(whyNot(good.left(size)), "") << size;
    for (; size < good.size(); size += 997)
        ASSERT_EQ(whyNot(good.left(size)), "the file is incomplete") << size;
    ASSERT_EQ(whyNot(good.left(good.size() - 1)), "the file is incomplete");
}

// Each byte of the header, of the table of segments and of the notes behind it, with values that make sizes
// and places small, huge and off by one.
TEST(PluginFile, NoByteOfItsHeadersIsTakenOnTrust)
{
    QByteArray library = contentOf(testPlugin("Good"));
    int refused = 0;
    int accepted = 0;
    for (int place = 0; place < 1200; ++place) {
        const char original = library[place];
        for (const int value : {0, 1, 0x7f, 0x80, 0xff, original + 1, original - 1, original ^ 4}) {
            library[place] = char(value);
            const std::string why = whyNot(library);
            ASSERT_EQ(why.find('\n'), std::string::npos) << place;
            ASSERT_LT(why.size(), 200u) << place;
            ++(why.empty() ? accepted : refused);
        }
        library[place] = original;
    }
    EXPECT_GT(refused, 300);
    EXPECT_GT(accepted, 300);
    EXPECT_EQ(whyNot(library), "");
}

TEST(PluginFile, DamagedNotesAreRefused)
{
    const QByteArray good = note("Other", "something") + note("Scopix", "contract=1.0\n");
    for (int cut = 1; cut < 24; ++cut)
        EXPECT_EQ(whyNot(libraryWithNotes(good.left(good.size() - 3 - cut))), "its notes are damaged") << cut;
    for (const std::size_t field : {offsetof(Elf64_Nhdr, n_namesz), offsetof(Elf64_Nhdr, n_descsz)}) {
        for (const quint32 size : {0x7fffffffu, 0xfffffff0u, 0xffffffffu}) {
            QByteArray bad = good;
            put(bad, field, size);
            EXPECT_EQ(whyNot(libraryWithNotes(bad)), "its notes are damaged") << size;
        }
    }
}

TEST(PluginFile, DoesNotReadOversizedNotes)
{
    const QByteArray small = QByteArray(12, '\0'); // a note without owner and content
    EXPECT_EQ(whyNot(libraryWithNotes(small.repeated(80000))), "");
    EXPECT_EQ(whyNot(libraryWithNotes(small.repeated(100000))), "its notes are damaged");
    EXPECT_EQ(whyNot(libraryWithNotes(small.repeated(80000), 60000)), "its notes are damaged");
}
