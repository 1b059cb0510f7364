// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

/// A message to the developer of an application: the library was used wrongly, or something deserves
/// attention.
class XSG_API SoDebugError : public SoErrorClass<SoDebugError, SoError>
{
public:
    static constexpr const char* ClassName = "DebugError";

    enum Severity { ERROR = 0, WARNING = 1, INFO = 2 };

    /// source: the operation that has something to say.
    static void post(const char* source, const SbString& sentence) { post(ERROR, source, sentence); }
    static void postWarning(const char* source, const SbString& sentence) { post(WARNING, source, sentence); }
    static void postInfo(const char* source, const SbString& sentence) { post(INFO, source, sentence); }
    static void post(const char* source, const SbSentence& sentence) { post(ERROR, source, sentence); }
    static void postWarning(const char* source, const SbSentence& sentence)
    {
        post(WARNING, source, sentence);
    }
    static void postInfo(const char* source, const SbSentence& sentence) { post(INFO, source, sentence); }

    Severity getSeverity() const { return m_severity; }

private:
    SoDebugError(Severity severity, const char* source, const SbSentence& sentence);
    static void post(Severity severity, const char* source, const SbString& sentence);
    static void post(Severity severity, const char* source, const SbSentence& sentence);

    Severity m_severity;
};

extern template class SoTyped<SoDebugError, SoError>;
extern template class SoErrorClass<SoDebugError, SoError>;
