// SPDX-License-Identifier: MIT
#pragma once

#include "support/OutputTaps.h"

#include <scopix/SpxOutput.h>

#include <mutex>
#include <vector>

namespace scopix
{

/// Lets extensions hear what the process writes and reports, as long as this lives.
class ProgramOutput : public SpxOutput, private OutputTaps::Sink
{
public:
    ProgramOutput();
    ~ProgramOutput() override;

    void addListener(SpxOutputListener* listener) override;
    void removeListener(SpxOutputListener* listener) override;

private:
    void written(OutputTaps::Stream stream, const char* text, std::size_t length) override;
    void reported(const SoError& error) override;

    std::mutex m_mutex;
    std::vector<SpxOutputListener*> m_listeners;
};

} // namespace scopix
