// SPDX-License-Identifier: MIT
// Texts between the scene graph and Qt, and numbers out of them. Always the C locale.
#pragma once

#include <xsg/values/SbName.h>
#include <xsg/values/SbString.h>

#include <QString>

inline QString toQString(const SbString& text)
{
    return QString::fromStdU16String(text.toUtf16());
}

/// Names are Latin-1.
inline QString toQString(SbName name)
{
    return QString::fromLatin1(name.getString(), name.getLength());
}

inline SbString toSbString(const QString& text)
{
    return SbString::fromUtf16(text.toStdU16String());
}

/// 0 for a text that is no number, and for one that is too large to be held.
inline float toFloatOr0(const QString& text)
{
    bool ok = false;
    const float value = text.toFloat(&ok);
    return ok ? value : 0.F;
}

inline double toDoubleOr0(const QString& text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : 0.0;
}
