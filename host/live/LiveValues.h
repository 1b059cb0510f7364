// SPDX-License-Identifier: MIT
// Values of a running program as fields, and fields as values to write to it.
#pragma once

#include <scopix/live/adapter/Adapter.h>
#include <xsg/values/SbName.h>

#include <memory>
#include <optional>

class SoField;
class SoFieldContainer;

namespace scopix
{

/// A field of the owner for values of this kind; null where there is none, as for references to objects.
/// Numbers with names become enumerations and bit masks; what is only text becomes a string.
std::unique_ptr<SoField> makeLiveField(const live::PropertyInfo& info, SoFieldContainer* owner);

/// Values of this property can be turned back from the field.
bool canWriteBack(const live::PropertyInfo& info);

/// Writes the value to a field that was made for its kind. False, and no change, where it is of another kind
/// or damaged.
bool showLiveValue(const live::Value& value, SoField& field);

/// What the field holds, in the form of `present`, the value that the program has. Components that the user
/// has not changed keep every bit of it, also those that a field holds with less precision or not at all.
/// None where the field's text is no such value.
std::optional<live::Value> liveValueOf(const SoField& field, const live::Value& present);

/// The objects that a value refers to.
std::vector<live::NodeId> objectsIn(const live::Value& value);

/// Text that came from a program, as a name of the scene graph.
SbName liveName(const std::string& text);

} // namespace scopix
