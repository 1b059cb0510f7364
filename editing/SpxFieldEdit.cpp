// SPDX-License-Identifier: MIT
#include "SpxFieldEdit.h"

#include "SpxConnectCommand.h"
#include "SpxFreshDefault.h"
#include "SpxSetIgnoredCommand.h"
#include "SpxText.h"

#include <scopix/SpxPreviewServices.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/SpxServices.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QCoreApplication>

namespace
{

QString stepName(const SoField& field)
{
    const QString name = SpxText::toQString(field.getName());
    const SoFieldContainer* node = field.getContainer();
    const QString type =
        node ? SpxText::toQString(node->getTypeId().getName()) + QLatin1Char('.') : QString();
    return QCoreApplication::translate("SpxFieldEdit", "Change %1").arg(type + name);
}

bool canFollow(const SoField& field, const SoField& source)
{
    const SoField* next = &source;
    while (next && next != &field)
        next = next->getConnectedField();
    return !next && field.canConvertFrom(source);
}

} // namespace

bool SpxFieldEdit::isRefused()
{
    SpxPreviewServices* preview = SpxPreviewServices::getInstance();
    return preview && preview->refusesEdit();
}

bool SpxFieldEdit::record(std::unique_ptr<SpxCommand> command)
{
    SpxServices* services = SpxServices::getInstance();
    if (!services || !command)
        return false;
    services->executeCommand(command.release());
    return true;
}

bool SpxFieldEdit::record(std::unique_ptr<SpxCommand> command, const SoField& edited)
{
    SpxSceneServices* services = SpxSceneServices::getInstance();
    if (!services || !command)
        return record(std::move(command));
    services->executeCommand(command.release(), stepName(edited));
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

bool SpxFieldEdit::setSource(SoField* field, SoField* source)
{
    if (field->getConnectedField() == source)
        return false;
    if ((source && !canFollow(*field, *source)) || isRefused())
        return false;
    auto command = std::make_unique<SpxConnectCommand>(field, source);
    if (!SpxServices::getInstance()) {
        command->execute();
        return false;
    }
    // The host executes it: what the field follows before, it then sees.
    const SpxFieldPointer edited(field);
    record(std::move(command), *field);
    return edited && edited.get()->getConnectedField() == source;
}

bool SpxFieldEdit::setIgnored(SoField* field, bool ignored)
{
    if (field->isIgnored() == ignored)
        return false;
    return apply(field, std::make_unique<SpxSetIgnoredCommand>(field, ignored),
                 [&] { field->setIgnored(ignored); });
}
