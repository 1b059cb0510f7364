// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/files/SceneReader.h>
#include <xsg/values/XsgExport.h>

#include <memory>
#include <string>

namespace xsg
{

/// Reads one scene file piece by piece, so that a program can show how far it is and stay alive meanwhile:
///
///     SceneReading reading(path);
///     while (!reading.advance(Clock::now() + 10ms))
///         ... // reading.getProgress()
///     SoRef<SoNode> scene = reading.takeScene(); // or null: reading.getError()
///
/// Of the file, no more is in memory than is being looked at, and nothing is read behind the first error.
/// Deleting it gives up. Belongs to the graph's thread.
class XSG_API SceneReading
{
public:
    /// Opens the file.
    explicit SceneReading(const std::string& path);
    ~SceneReading();
    SceneReading(const SceneReading&) = delete;
    SceneReading& operator=(const SceneReading&) = delete;

    /// True when it is done; see SceneReader. An error has then been posted as an SoReadError too.
    bool advance(SceneReader::Clock::time_point until);
    /// From 0 to 1.
    double getProgress() const;
    /// Null where it cannot be read.
    SoRef<SoNode> takeScene();
    /// One sentence, with file, line and column; empty when all is well.
    const SbSentence& getError() const { return m_error; }
    SceneReader& getReader() { return m_reader; }

private:
    struct CloseFile {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    void open();
    std::size_t readMore(char* to, std::size_t size);
    void refuse(const SbSentence& sentence);
    bool end();

    std::string m_path;
    std::unique_ptr<std::FILE, CloseFile> m_file;
    std::size_t m_size = 0;
    std::size_t m_read = 0;
    SceneReader m_reader;
    SbSentence m_error;
    bool m_isDone = false;
};

/// Posts what the reader found wrong in the file of this name, and returns it as a sentence.
SbSentence postReadError(const std::string& name, const SceneReader& reader);

} // namespace xsg
