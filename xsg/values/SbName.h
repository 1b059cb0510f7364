// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbString.h>

#include <cstring>

/// An interned name: comparing two names compares two pointers. Bytes above 127 are kept as they are
/// (Latin-1). Interning is safe from any thread; the text of a name lives until the process ends.
class XSG_API SbName
{
public:
    SbName();                     // the empty name
    SbName(const char* text);     // NOLINT(google-explicit-constructor): a null pointer gives the empty name
    SbName(const SbString& text); // NOLINT(google-explicit-constructor)

    const char* getString() const { return m_text; }
    int getLength() const { return static_cast<int>(std::strlen(m_text)); }

    friend bool operator==(SbName a, SbName b) { return a.m_text == b.m_text; }
    friend bool operator!=(SbName a, SbName b) { return a.m_text != b.m_text; }

private:
    const char* m_text;
};
