// SPDX-License-Identifier: MIT
#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/Printable.h>

#include <array>
#include <charconv>
#include <cstdio>

template <class Self, class Base>
SoErrorHandler& SoErrorClass<Self, Base>::handler()
{
    // Never destroyed: errors may be posted while the process ends.
    static auto& handler = *new SoErrorHandler(SoError::defaultHandler, nullptr);
    return handler;
}

template class SoErrorClass<SoError, SoTypedObject>;
template class SoTyped<SoError, SoTypedObject>;
template class SoErrorClass<SoDebugError, SoError>;
template class SoTyped<SoDebugError, SoError>;
template class SoErrorClass<SoReadError, SoError>;
template class SoTyped<SoReadError, SoError>;
template class SoErrorClass<SoMemoryError, SoError>;
template class SoTyped<SoMemoryError, SoError>;
template class SoErrorClass<SoGLError, SoError>;
template class SoTyped<SoGLError, SoError>;
template class SoErrorClass<SoErrorStack, SoError>;
template class SoTyped<SoErrorStack, SoError>;

namespace
{

std::string hexadecimal(unsigned code)
{
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, code, 16).ptr;
    return "0x" + std::string(digits, end);
}

std::string joined(const std::vector<SbString>& sentences)
{
    std::string all;
    for (const SbString& sentence : sentences) {
        if (!all.empty())
            all += '\n';
        all += sentence.str();
    }
    return all;
}

} // namespace

void SoError::defaultHandler(const SoError* error, void* /*data*/)
{
    // In one call, so that the lines of several threads do not mix.
    const std::string line = error->getDebugString().str() + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
}

void SoError::post(const SbString& sentence)
{
    handler().handle(SoError(sentence));
}

void SoError::post(const SbSentence& sentence)
{
    handler().handle(SoError(sentence));
}

SoDebugError::SoDebugError(Severity severity, const char* source, const SbSentence& sentence)
    : SoErrorClass(SbSentence("%1: %2", source ? source : "", sentence))
    , m_severity(severity)
{
}

void SoDebugError::post(Severity severity, const char* source, const SbString& sentence)
{
    post(severity, source, SbSentence::verbatim(sentence.str()));
}

void SoDebugError::post(Severity severity, const char* source, const SbSentence& sentence)
{
    handler().handle(SoDebugError(severity, source, sentence));
}

SoReadError::SoReadError(const SbString& file, int line, int column, const SbSentence& sentence)
    : SoErrorClass(describe(file, line, column, sentence))
    , m_file(file)
    , m_line(line)
    , m_column(column)
{
}

SbSentence SoReadError::describe(const SbString& file, int line, int column, const SbSentence& sentence)
{
    if (column > 0 && line > 0)
        return xsg::printable(SbSentence("%1:%2: Column %3: %4", file.str(), line, column, sentence));
    if (column > 0)
        return xsg::printable(SbSentence("%1: Column %2: %3", file.str(), column, sentence));
    return xsg::printable(line > 0 ? SbSentence("%1:%2: %3", file.str(), line, sentence)
                                   : SbSentence("%1: %2", file.str(), sentence));
}

void SoReadError::post(const SbString& file, int line, int column, const SbString& sentence)
{
    post(file, line, column, SbSentence::verbatim(sentence.str()));
}

void SoReadError::post(const SbString& file, int line, int column, const SbSentence& sentence)
{
    handler().handle(SoReadError(file, line, column, sentence));
}

SoMemoryError::SoMemoryError(const SbSentence& wanted, std::size_t bytes)
    : SoErrorClass(SbSentence("No memory for %1: %2 bytes were asked for.", wanted, bytes))
{
}

void SoMemoryError::post(const SbString& wanted, std::size_t bytes)
{
    post(SbSentence::verbatim(wanted.str()), bytes);
}

void SoMemoryError::post(const SbSentence& wanted, std::size_t bytes)
{
    handler().handle(SoMemoryError(wanted, bytes));
}

SoGLError::SoGLError(unsigned code, const char* source)
    : SoErrorClass(SbSentence("%1: OpenGL reports %2.", source ? source : "", getCodeName(code).str()))
    , m_code(code)
{
}

SbString SoGLError::getCodeName(unsigned code)
{
    static constexpr unsigned FirstCode = 0x0500;
    static constexpr std::array<const char*, 7> Names = {"GL_INVALID_ENUM",
                                                         "GL_INVALID_VALUE",
                                                         "GL_INVALID_OPERATION",
                                                         "GL_STACK_OVERFLOW",
                                                         "GL_STACK_UNDERFLOW",
                                                         "GL_OUT_OF_MEMORY",
                                                         "GL_INVALID_FRAMEBUFFER_OPERATION"};
    const unsigned index = code - FirstCode;
    return index < Names.size() ? SbString(Names[index]) : SbString(hexadecimal(code));
}

void SoGLError::post(unsigned code, const char* source)
{
    handler().handle(SoGLError(code, source));
}

SoErrorStack::SoErrorStack(const std::vector<SbString>& sentences)
    : SoErrorClass(SbString(joined(sentences)))
{
}

void SoErrorStack::Builder::post()
{
    if (isEmpty())
        return;
    std::vector<SbString> sentences;
    sentences.swap(m_sentences);
    handler().handle(SoErrorStack(sentences));
}
