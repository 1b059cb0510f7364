// SPDX-License-Identifier: MIT
#pragma once

#include "SpxMFSetValueCommand.h"
#include "SpxSFSetValueCommand.h"

#include <scopix/editing/SpxFieldEdit.h>
#include <xsg/core/SoMField.h>
#include <xsg/core/SoSField.h>

#include <memory>
#include <utility>

/// The edits of the default editors: each builds its own command, which keeps values as text, and takes the
/// steps of SpxFieldEdit with it.
namespace EdFieldEdits
{

/// `write` writes the field. `saved` is the text that undo restores, empty for what the field gives now; it
/// is consumed.
template <class Write>
void write(SoSField* field, SbString& saved, Write&& write)
{
    SpxFieldEdit::apply(field, std::make_unique<SpxSFSetValueCommand>(field, saved),
                        std::forward<Write>(write));
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
    SpxFieldEdit::apply(field, std::make_unique<SpxMFSetValueCommand>(field, index, nothingSaved),
                        std::forward<Write>(write));
}

/// Gives the field the value that it has in a fresh node; nothing where no fresh node can be made.
void setToDefault(SoField* field);
/// Nothing where the field's flag is so already.
void setIgnored(SoField* field, bool ignored);

} // namespace EdFieldEdits
