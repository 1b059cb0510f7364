// SPDX-License-Identifier: MIT
#include <xsg/frames/SoFrameFile.h>

#include <xsg/frames/FrameBytes.h>
#include <xsg/support/FileReplacement.h>
#include <xsg/support/SpecialFile.h>
#include <xsg/support/SystemReason.h>

#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>
#include <utility>

namespace
{

using xsg::FrameBytes;

constexpr std::string_view Magic = "#Xsg frames V1\n";
constexpr std::size_t ChecksumBytes = 4;
constexpr std::uint64_t MostColumns = 1024;
constexpr std::uintmax_t LargestFile = std::uintmax_t{1} << 30;

// FNV-1a
std::uint32_t checksum(std::string_view bytes)
{
    std::uint32_t sum = 2166136261U;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
    return sum;
}

std::string checksumBytes(std::string_view bytes)
{
    const std::uint32_t sum = checksum(bytes);
    std::string text;
    for (std::size_t i = 0; i < ChecksumBytes; ++i)
        text += static_cast<char>(sum >> (8 * i));
    return text;
}

void putBlock(std::string& to, char kind, const std::string& content)
{
    const std::string block = kind + content;
    FrameBytes::put(to, block.size());
    to += block;
    to += checksumBytes(block);
}

std::string headOf(const SoFrameRecording& recording)
{
    std::string head;
    FrameBytes::put(head, recording.about.size());
    for (const auto& [key, value] : recording.about) {
        FrameBytes::putText(head, key);
        FrameBytes::putText(head, value);
    }
    FrameBytes::put(head, recording.columns.size());
    for (const SoFrameColumn& column : recording.columns) {
        FrameBytes::putText(head, column.name);
        FrameBytes::putText(head, column.unit);
        FrameBytes::put(head, column.isState ? 1 : 0);
    }
    return head;
}

std::int64_t plus(std::int64_t a, std::int64_t b)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

std::int64_t minus(std::int64_t a, std::int64_t b)
{
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}

// Column by column, each value as its difference to the one before.
std::string rowsOf(const SoFrameRecording& recording)
{
    std::string rows;
    FrameBytes::put(rows, recording.getNumFrames());
    for (const SoFrameColumn& column : recording.columns) {
        std::int64_t before = 0;
        for (const std::int64_t value : column.values)
            FrameBytes::putSigned(rows, minus(value, std::exchange(before, value)));
    }
    return rows;
}

std::string marksOf(const SoFrameRecording& recording)
{
    std::string marks;
    for (const SoFrameMark& mark : recording.marks) {
        FrameBytes::putSigned(marks, mark.time);
        FrameBytes::putText(marks, mark.text);
    }
    return marks;
}

std::string blocksOf(const SoFrameRecording& rows)
{
    std::string bytes;
    if (rows.getNumFrames() > 0)
        putBlock(bytes, 'F', rowsOf(rows));
    if (!rows.marks.empty())
        putBlock(bytes, 'M', marksOf(rows));
    return bytes;
}

bool takeHead(FrameBytes bytes, SoFrameRecording& to)
{
    for (std::uint64_t left = bytes.get(); left > 0 && bytes.isGood(); --left) {
        std::string key = bytes.getText();
        to.about.emplace_back(std::move(key), bytes.getText());
    }
    const std::uint64_t numColumns = bytes.get();
    for (std::uint64_t i = 0; i < numColumns && numColumns <= MostColumns && bytes.isGood(); ++i) {
        SoFrameColumn column;
        column.name = bytes.getText();
        column.unit = bytes.getText();
        column.isState = bytes.get() != 0;
        to.columns.push_back(std::move(column));
    }
    return bytes.isGood() && !to.columns.empty() && to.columns.size() == numColumns;
}

bool takeRows(FrameBytes bytes, SoFrameRecording& to)
{
    const std::size_t before = to.getNumFrames();
    const std::uint64_t count = bytes.get();
    if (!bytes.isGood() || count > bytes.getSize() / to.columns.size()) // each value has a byte at least
        return false;
    for (SoFrameColumn& column : to.columns) {
        std::int64_t value = 0;
        for (std::uint64_t i = 0; i < count; ++i)
            column.values.push_back(value = plus(value, bytes.getSigned()));
    }
    if (bytes.isGood())
        return true;
    for (SoFrameColumn& column : to.columns)
        column.values.resize(before);
    return false;
}

bool takeMarks(FrameBytes bytes, SoFrameRecording& to)
{
    while (!bytes.isAtEnd() && bytes.isGood()) {
        SoFrameMark mark;
        mark.time = bytes.getSigned();
        mark.text = bytes.getText();
        if (bytes.isGood())
            to.marks.push_back(std::move(mark));
    }
    return bytes.isGood();
}

// Its kind and content; nothing where the file is torn or damaged.
std::string_view nextBlock(FrameBytes& bytes)
{
    const std::string_view block = bytes.getBytes(bytes.get());
    const std::string_view sum = bytes.getBytes(ChecksumBytes);
    const bool isWhole = bytes.isGood() && !block.empty() && sum == checksumBytes(block);
    return isWhole ? block : std::string_view();
}

bool takeBlock(std::string_view block, SoFrameRecording& to)
{
    const FrameBytes content(block.substr(1));
    switch (block.front()) {
    case 'F':
        return takeRows(content, to);
    case 'M':
        return takeMarks(content, to);
    default:
        return true; // of a later version
    }
}

} // namespace

SoFrameFile::~SoFrameFile()
{
    close();
}

bool SoFrameFile::fail(int code)
{
    m_problem = xsg::systemReason(code);
    close();
    return false;
}

std::string SoFrameFile::format(const SoFrameRecording& recording)
{
    std::string bytes(Magic);
    putBlock(bytes, 'H', headOf(recording));
    return bytes + blocksOf(recording);
}

bool SoFrameFile::open(const std::string& path, const SoFrameRecording& empty)
{
    close();
    m_problem = xsg::reasonAgainstReplacing(path);
    if (!m_problem.empty())
        return false;
    m_descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (m_descriptor < 0)
        return fail(errno);
    m_numColumns = empty.columns.size();
    SoFrameRecording head;
    head.about = empty.about;
    head.columns = empty.columns;
    for (SoFrameColumn& column : head.columns)
        column.values.clear();
    return writeBytes(format(head));
}

bool SoFrameFile::write(const SoFrameRecording& rows)
{
    if (rows.columns.size() == m_numColumns)
        return isOpen() && writeBytes(blocksOf(rows));
    SoFrameRecording marks;
    marks.marks = rows.marks;
    return isOpen() && writeBytes(blocksOf(marks));
}

bool SoFrameFile::writeBytes(const std::string& bytes)
{
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = ::write(m_descriptor, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno != EINTR)
            return fail(errno);
        done += written > 0 ? static_cast<std::size_t>(written) : 0;
    }
    return true;
}

void SoFrameFile::close()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
    m_descriptor = -1;
}

bool SoFrameFile::read(const std::string& path, SoFrameRecording& recording, SbSentence& problem)
{
    if (xsg::isSpecialFile(path)) {
        problem = SbSentence("it is no regular file");
        return false;
    }
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file || file.tellg() < 0) {
        problem = SbSentence("it cannot be read");
        return false;
    }
    const auto size = static_cast<std::uintmax_t>(file.tellg());
    if (size > LargestFile) {
        problem = SbSentence("it has more than 1 GiB");
        return false;
    }
    std::string bytes(size, '\0');
    file.seekg(0);
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return parse(bytes, recording, problem);
}

bool SoFrameFile::parse(std::string_view text, SoFrameRecording& recording, SbSentence& problem)
{
    recording = {};
    if (text.substr(0, Magic.size()) != Magic) {
        problem = SbSentence("it is no recording of frames");
        return false;
    }
    FrameBytes bytes(text.substr(Magic.size()));
    const std::string_view head = nextBlock(bytes);
    if (head.empty() || head.front() != 'H' || !takeHead(FrameBytes(head.substr(1)), recording)) {
        recording = {};
        problem = SbSentence("its head is damaged");
        return false;
    }
    for (std::string_view block = nextBlock(bytes); !block.empty(); block = nextBlock(bytes)) {
        if (!takeBlock(block, recording))
            break;
    }
    return true;
}
