// SPDX-License-Identifier: MIT
#include <xsg/files/SceneReading.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/support/SpecialFile.h>
#include <xsg/support/SystemReason.h>
#include <xsg/values/Printable.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace
{

constexpr std::size_t LargestFile = std::size_t{1} << 32U;

} // namespace

SbSentence xsg::postReadError(const std::string& name, const SceneReader& reader)
{
    const int line = reader.getLine();
    const int column = reader.getColumn();
    const SbSentence sentence("%1.", reader.getProblem());
    SoReadError::post(name, line, column, sentence);
    return SoReadError::describe(name, line, column, sentence);
}

xsg::SceneReading::SceneReading(const std::string& path)
    : m_path(path)
    , m_reader([this](char* to, std::size_t size) { return readMore(to, size); })
{
    open();
}

xsg::SceneReading::~SceneReading() = default;

void xsg::SceneReading::open()
{
    if (isSpecialFile(m_path)) // before it is opened, for which a pipe would wait
        return refuse(SbSentence("A scene file was expected, but this is not a file."));
    m_file.reset(std::fopen(m_path.c_str(), "rb"));
    struct stat about {
    };
    if (!m_file || fstat(fileno(m_file.get()), &about) != 0)
        return refuse(SbSentence("The file cannot be read: %1.", systemReason(errno)));
    m_size = static_cast<std::size_t>(about.st_size);
    if (m_size > LargestFile)
        return refuse(
            SbSentence("A scene file of at most 4 GiB was expected, but this one has %1 bytes.", m_size));
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0); // pieces are large
    feeds.filesRead.add();
}

// Never more than the file had when it was opened: one that grows as fast as it is read would have no end.
std::size_t xsg::SceneReading::readMore(char* to, std::size_t size)
{
    const std::size_t count = std::fread(to, 1, std::min(size, m_size - m_read), m_file.get());
    m_read += count;
    feeds.bytesParsed.add(static_cast<std::int64_t>(count));
    return count;
}

void xsg::SceneReading::refuse(const SbSentence& sentence)
{
    m_error = SoReadError::describe(m_path, 0, 0, sentence);
    m_isDone = true;
    SoReadError::post(m_path, 0, 0, sentence);
}

bool xsg::SceneReading::advance(SceneReader::Clock::time_point until)
{
    return m_isDone || (m_reader.advance(until) && end());
}

bool xsg::SceneReading::end()
{
    m_isDone = true;
    if (std::ferror(m_file.get()))
        refuse(SbSentence("The file cannot be read to its end."));
    else if (!m_reader.getProblem().empty())
        m_error = postReadError(m_path, m_reader);
    m_file.reset();
    return true;
}

double xsg::SceneReading::getProgress() const
{
    return m_size == 0 ? 0 : static_cast<double>(m_read) / static_cast<double>(m_size);
}

SoRef<SoNode> xsg::SceneReading::takeScene()
{
    return m_error.empty() ? m_reader.takeScene() : nullptr;
}
