// SPDX-License-Identifier: MIT
#include "SpxFieldEdit.h"

#include "SpxFreshDefault.h"
#include "SpxSetIgnoredCommand.h"
#include "SpxText.h"

#include <scopix/SpxServices.h>
#include <xsg/core/SoField.h>

bool SpxFieldEdit::record(std::unique_ptr<SpxCommand> command)
{
    SpxServices* services = SpxServices::getInstance();
    if (!services || !command)
        return false;
    services->executeCommand(command.release());
    return true;
}

bool SpxFieldEdit::setValue(SoField* field, const SoField& value)
{
    return write(field, [&] { return field->copyFrom(value); });
}

bool SpxFieldEdit::setText(SoField* field, const QString& text)
{
    return write(field, [&] { return field->set(SpxText::toSbString(text)); });
}

bool SpxFieldEdit::setToDefault(SoField* field)
{
    const SpxFreshDefault fresh(field);
    return fresh.get() && write(field, [&] {
               const bool isWritten = field->copyFrom(*fresh.get());
               field->setDefault(true);
               return isWritten;
           });
}

bool SpxFieldEdit::setIgnored(SoField* field, bool ignored)
{
    if (field->isIgnored() == ignored)
        return false;
    return apply(field, std::make_unique<SpxSetIgnoredCommand>(field, ignored),
                 [&] { field->setIgnored(ignored); });
}
