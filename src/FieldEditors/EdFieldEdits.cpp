// SPDX-License-Identifier: MIT
#include "EdFieldEdits.h"

#include "SpxFieldIgnoredCommand.h"
#include "SpxFieldSetDefaultCommand.h"

#include <scopix/editing/SpxFreshDefault.h>

void EdFieldEdits::setToDefault(SoField* field)
{
    SbString text;
    std::unique_ptr<SpxCommand> command;
    {
        const SpxFreshDefault fresh(field); // destroyed before the field is written
        if (!fresh.get())
            return;
        command = std::make_unique<SpxFieldSetDefaultCommand>(field, fresh.get());
        fresh.get()->get(text);
    }
    SpxFieldEdit::apply(field, std::move(command), [&] { return field->set(text); });
}

void EdFieldEdits::setIgnored(SoField* field, bool ignored)
{
    if (field->isIgnored() == ignored)
        return;
    SpxFieldEdit::apply(field, std::make_unique<SpxFieldIgnoredCommand>(field, ignored),
                        [&] { field->setIgnored(ignored); });
}
