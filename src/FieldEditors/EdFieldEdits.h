// SPDX-License-Identifier: MIT
#pragma once

#include "SpxMFSetValueCommand.h"
#include "SpxSFSetValueCommand.h"

#include <scopix/SpxCommand.h>
#include <xsg/values/SbString.h>

#include <memory>
#include <utility>

class SoField;
class SoMField;
class SoSField;

/// The road of one edit, the same for every editor: the command is built while the field still has its old
/// value, then the field is written, then the command goes to the host's undo stack.
namespace EdFieldEdits
{

/// Hands a command to the host. Without a host there is nobody to keep it, and it goes.
void record(std::unique_ptr<SpxCommand> command);

/// `write` writes the field. `saved` is the text that undo restores, empty for what the field gives now; it
/// is consumed.
template <class Write>
void write(SoSField* field, SbString& saved, Write&& write)
{
    auto command = std::make_unique<SpxSFSetValueCommand>(field, saved);
    write();
    record(std::move(command));
}

template <class Write>
void write(SoSField* field, Write&& write)
{
    SbString nothingSaved;
    EdFieldEdits::write(field, nothingSaved, std::forward<Write>(write));
}

/// The same for one value of a multi-value field.
template <class Write>
void write1(SoMField* field, int index, Write&& write)
{
    SbString nothingSaved;
    auto command = std::make_unique<SpxMFSetValueCommand>(field, index, nothingSaved);
    write();
    record(std::move(command));
}

/// Gives the field the value that it has in a fresh node; nothing where no fresh node can be made.
void setToDefault(SoField* field);
/// Nothing where the field's flag is so already.
void setIgnored(SoField* field, bool ignored);

} // namespace EdFieldEdits
