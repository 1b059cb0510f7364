// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

#include <vector>

/// Several failures that belong together, from the cause to what failed because of it. Its debug string has
/// one line for each:
///
///     SoErrorStack::Builder errors;
///     errors.add("The texture \"wood.png\" cannot be opened.");
///     errors.add("The material of \"Table\" has no texture.");
///     errors.post();
class XSG_API SoErrorStack : public SoErrorClass<SoErrorStack, SoError>
{
public:
    static constexpr const char* ClassName = "ErrorStack";

    /// Collects sentences on one thread. Nothing is posted until post() is called, nor when there is nothing
    /// to post.
    class XSG_API Builder
    {
    public:
        void add(const SbString& sentence) { m_sentences.push_back(sentence); }
        bool isEmpty() const { return m_sentences.empty(); }
        /// Posts what was added, and is empty again.
        void post();

    private:
        std::vector<SbString> m_sentences;
    };

private:
    explicit SoErrorStack(const std::vector<SbString>& sentences);
};

extern template class SoTyped<SoErrorStack, SoError>;
extern template class SoErrorClass<SoErrorStack, SoError>;
