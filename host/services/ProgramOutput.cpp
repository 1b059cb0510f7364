// SPDX-License-Identifier: MIT
#include "services/ProgramOutput.h"

#include <algorithm>

namespace scopix
{

ProgramOutput::ProgramOutput()
{
    OutputTaps::getInstance().setSink(this);
    OutputTaps::getInstance().begin();
}

ProgramOutput::~ProgramOutput()
{
    OutputTaps::getInstance().end();
    OutputTaps::getInstance().setSink(nullptr);
}

void ProgramOutput::addListener(SpxOutputListener* listener)
{
    const std::lock_guard lock(m_mutex);
    if (listener && std::find(m_listeners.begin(), m_listeners.end(), listener) == m_listeners.end())
        m_listeners.push_back(listener);
}

void ProgramOutput::removeListener(SpxOutputListener* listener)
{
    const std::lock_guard lock(m_mutex);
    m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), listener), m_listeners.end());
}

void ProgramOutput::written(OutputTaps::Stream stream, const char* text, std::size_t length)
{
    const std::lock_guard lock(m_mutex);
    for (SpxOutputListener* each : m_listeners)
        each->written(static_cast<SpxOutputListener::Stream>(stream), text, length);
}

void ProgramOutput::reported(const SoError& error)
{
    const std::lock_guard lock(m_mutex);
    for (SpxOutputListener* each : m_listeners)
        each->reported(error);
}

} // namespace scopix
