// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

/// There is no memory for something.
class XSG_API SoMemoryError : public SoErrorClass<SoMemoryError, SoError>
{
public:
    static constexpr const char* ClassName = "MemoryError";

    /// wanted: what it was for; bytes: how much was asked for.
    static void post(const SbString& wanted, std::size_t bytes);
    static void post(const SbSentence& wanted, std::size_t bytes);

private:
    SoMemoryError(const SbSentence& wanted, std::size_t bytes);
};

extern template class SoTyped<SoMemoryError, SoError>;
extern template class SoErrorClass<SoMemoryError, SoError>;
