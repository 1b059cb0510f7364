// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

/// OpenGL reported an error.
class XSG_API SoGLError : public SoErrorClass<SoGLError, SoError>
{
public:
    static constexpr const char* ClassName = "GLError";

    /// code: as OpenGL gives it; source: the operation after which it was found.
    static void post(unsigned code, const char* source);

    unsigned getCode() const { return m_code; }
    /// "GL_INVALID_ENUM", ...; the number in hexadecimal for a code without a name.
    static SbString getCodeName(unsigned code);

private:
    SoGLError(unsigned code, const char* source);

    unsigned m_code;
};

extern template class SoTyped<SoGLError, SoError>;
extern template class SoErrorClass<SoGLError, SoError>;
