// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

/// A file that cannot be read as what it should be. Whatever bytes its name and the sentence have, the debug
/// string is one line that is harmless on a terminal.
class XSG_API SoReadError : public SoErrorClass<SoReadError, SoError>
{
public:
    static constexpr const char* ClassName = "ReadError";

    /// Line and column: counted from 1, the column in bytes; 0 where there is none. The sentence says what is
    /// wrong and what was expected.
    static void post(const SbString& file, int line, const SbString& sentence)
    {
        post(file, line, 0, sentence);
    }
    static void post(const SbString& file, int line, int column, const SbString& sentence);
    static void post(const SbString& file, int line, int column, const SbSentence& sentence);
    /// What the error says as a whole: the place and the sentence.
    static SbSentence describe(const SbString& file, int line, int column, const SbSentence& sentence);

    const SbString& getFileName() const { return m_file; }
    int getLine() const { return m_line; }
    int getColumn() const { return m_column; }

private:
    SoReadError(const SbString& file, int line, int column, const SbSentence& sentence);

    SbString m_file;
    int m_line;
    int m_column;
};

extern template class SoTyped<SoReadError, SoError>;
extern template class SoErrorClass<SoReadError, SoError>;
