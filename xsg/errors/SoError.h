// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoErrorHandler.h>
#include <xsg/types/SoTyped.h>
#include <xsg/values/SbSentence.h>
#include <xsg/values/SbString.h>

/// Gives an error class its type and its handler.
template <class Self, class Base>
class XSG_API SoErrorClass : public SoTyped<Self, Base>
{
public:
    using SoTyped<Self, Base>::SoTyped;

    /// Returns when the callback that was replaced runs on no thread any more.
    static void setHandlerCallback(SoErrorCB* callback, void* data) { handler().set(callback, data); }
    static SoErrorCB* getHandlerCallback() { return handler().getCallback(); }
    static void* getHandlerData() { return handler().getData(); }

protected:
    static SoErrorHandler& handler();
};

/// A failure, described in one sentence. An error is built, passed to the handler of its class and destroyed:
/// nothing is thrown. Posting is safe from any thread; the handler runs on the thread that posts.
///
/// Each class of errors has a handler of its own: a callback with a data pointer. The handler that is there
/// at the start writes the debug string to standard error, one line per error; a null callback drops the
/// class's errors.
class XSG_API SoError : public SoErrorClass<SoError, SoTypedObject>
{
public:
    static constexpr const char* ClassName = "Error";

    static void post(const SbString& sentence);
    static void post(const SbSentence& sentence);
    /// In English.
    const SbString& getDebugString() const { return m_text; }
    /// The same, to be put into another language where somebody has translated it.
    const SbSentence& getSentence() const { return m_sentence; }

    /// The callback that every class has at the start; it needs no data.
    static void defaultHandler(const SoError* error, void* data);

protected:
    explicit SoError(SbString text)
        : m_sentence(SbSentence::verbatim(text.str()))
        , m_text(std::move(text))
    {
    }
    explicit SoError(SbSentence sentence)
        : m_sentence(std::move(sentence))
        , m_text(m_sentence.getText())
    {
    }

private:
    SbSentence m_sentence;
    SbString m_text;
};

extern template class SoTyped<SoError, SoTypedObject>;
extern template class SoErrorClass<SoError, SoTypedObject>;
