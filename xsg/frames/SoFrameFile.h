// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameRecording.h>
#include <xsg/values/SbSentence.h>

/// Writes a recording while it goes on. What write() was given is the system's then: it survives the end of
/// the program, however sudden. The file's form is in docs/frames.md. One thread at a time; sentences of
/// problems are in getProblem(), as the end of a sentence.
class XSG_API SoFrameFile
{
public:
    SoFrameFile() = default;
    ~SoFrameFile();
    SoFrameFile(const SoFrameFile&) = delete;
    SoFrameFile& operator=(const SoFrameFile&) = delete;

    /// Takes the place of what is there, which must be a regular file.
    bool open(const std::string& path, const SoFrameRecording& empty);
    bool isOpen() const { return m_descriptor >= 0; }
    /// Appends frames with the columns that open() was given, and marks.
    bool write(const SoFrameRecording& rows);
    void close();
    const SbSentence& getProblem() const { return m_problem; }

    /// What a file holds: all up to where it is torn. False, and why, where it is no recording.
    static bool read(const std::string& path, SoFrameRecording& recording, SbSentence& problem);
    /// What a file of all this holds.
    static std::string format(const SoFrameRecording& recording);
    /// read() of the bytes of a file.
    static bool parse(std::string_view bytes, SoFrameRecording& recording, SbSentence& problem);

private:
    bool writeBytes(const std::string& bytes);
    bool fail(int code);

    int m_descriptor = -1;
    std::size_t m_numColumns = 0;
    SbSentence m_problem;
};
