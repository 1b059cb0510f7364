// SPDX-License-Identifier: MIT
// Fields of xsg as the properties and values that travel. Numbers keep every bit on the way there and back.
#pragma once

#include <scopix/live/adapter/Adapter.h>
#include <scopix/live/values/LiveSentence.h>

#include <xsg/core/SoField.h>

namespace scopix::live
{

PropertyInfo propertyOf(const SoField& field);

/// A field of a type that has no kind here is its text.
Value valueOf(const SoField& field);

/// Empty where the field, which the inspector knows as `property`, has taken the value, otherwise why it has
/// not.
Sentence writeTo(SoField& field, const std::string& property, const Value& value);

/// Names of xsg are Latin-1.
std::string utf8Of(SbName name);

} // namespace scopix::live
