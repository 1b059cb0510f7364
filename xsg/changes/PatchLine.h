// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>

namespace xsg
{

/// Reads one line of a patch. One use.
class PatchLine
{
public:
    explicit PatchLine(std::string_view line)
        : m_in(line)
    {
    }

    /// False, and a sentence without its full stop, where the line is no change.
    bool read(SceneChange& change, SbSentence& problem);

private:
    bool readRest(SceneChange& change);
    bool readPath(SoScenePath& path, bool isField);
    bool readCount(SceneChange::Count& count);
    bool readAnchor(SceneChange& change);
    bool readOrigin(SceneChange& change);
    bool readName(std::optional<std::string>& name);
    bool readQuoted(std::string& text, const SbSentence& expected, const SbSentence& expectedText);
    bool readReplacement(SceneChange& change);
    bool readSet(SceneChange& change);
    bool readValue(SceneChange& change);
    bool readMarks(SceneChange& change);
    bool readEnd(SceneChange& change);
    bool accept(std::string_view word);
    bool expect(std::string_view sign);
    bool fail(const SbSentence& expected);
    bool failBeforeComma(const SbSentence& expected);

    TextReader m_in;
    SbSentence m_problem;
};

} // namespace xsg
