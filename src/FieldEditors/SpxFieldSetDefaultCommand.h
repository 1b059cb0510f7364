// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/values/SbString.h>

class SoField;

/// Gives a field its default value. Made before the field is written, so that it knows what undo brings back.
class SpxFieldSetDefaultCommand : public SpxCommand
{
public:
    /// `defaultField` is the same field of a fresh instance; it is read here and not kept.
    SpxFieldSetDefaultCommand(SoField* field, SoField* defaultField);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoField* m_field; // not owned; must outlive the command
    bool m_isMultiple;
    SbString m_defaultValue;
    SbString m_previousValue;
};
