// SPDX-License-Identifier: MIT
#include "EdFieldEdits.h"

#include "EdFreshDefault.h"
#include "SpxFieldIgnoredCommand.h"
#include "SpxFieldSetDefaultCommand.h"

#include <scopix/SpxServices.h>
#include <xsg/core/SoField.h>

void EdFieldEdits::record(std::unique_ptr<SpxCommand> command)
{
    if (SpxServices* services = SpxServices::getInstance())
        services->executeCommand(command.release());
}

void EdFieldEdits::setToDefault(SoField* field)
{
    auto fresh = std::make_unique<EdFreshDefault>(field);
    if (!fresh->get())
        return;
    auto command = std::make_unique<SpxFieldSetDefaultCommand>(field, fresh->get());
    SbString text;
    fresh->get()->get(text);
    fresh.reset();
    field->set(text);
    record(std::move(command));
}

void EdFieldEdits::setIgnored(SoField* field, bool ignored)
{
    if (field->isIgnored() == ignored)
        return;
    auto command = std::make_unique<SpxFieldIgnoredCommand>(field, ignored);
    field->setIgnored(ignored);
    record(std::move(command));
}
