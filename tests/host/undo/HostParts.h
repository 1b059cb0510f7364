// SPDX-License-Identifier: MIT
// What the tests of the host share: a command that writes down what is asked of it, and ways to act as a
// person does.
#pragma once

#include "services/HostServices.h"

#include <support/Waiting.h>

#include <scopix/SpxCommand.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QCoreApplication>
#include <QThread>

#include <functional>
#include <string>
#include <vector>

using namespace scopix;

using Log = std::vector<std::string>;

class LoggingCommand : public SpxCommand
{
public:
    LoggingCommand(Log& log, std::string name)
        : m_log(log)
        , m_name(std::move(name))
    {
    }
    void execute() override { m_log.push_back("execute " + m_name); }
    void undo() override { m_log.push_back("undo " + m_name); }
    void redo() override { m_log.push_back("redo " + m_name); }

private:
    Log& m_log;
    std::string m_name;
};

/// Sets a float field, as an editor does: the field is written first.
class SetFloat : public SpxCommand
{
public:
    SetFloat(SoSFFloat& field, float value)
        : m_field(field)
        , m_before(field.getValue())
        , m_after(value)
    {
        field.setValue(value);
    }
    void execute() override { m_field.setValue(m_after); }
    void undo() override { m_field.setValue(m_before); }
    void redo() override { execute(); }

private:
    SoSFFloat& m_field;
    float m_before;
    float m_after;
};

inline void pump()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}
