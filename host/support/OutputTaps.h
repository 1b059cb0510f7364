// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoErrorHandler.h>

#include <cstddef>
#include <memory>

namespace scopix
{

/// Hears what the process writes to std::cout, std::cerr and std::clog and what the scene graph reports,
/// before all that others install there, which get it too; see TapChain. One for the process. GUI thread
/// only.
class OutputTaps
{
public:
    enum Stream { Output, Error, Log };

    /// Called on any thread; what the sink itself writes or reports does not come back to it.
    class Sink
    {
    public:
        virtual void written(Stream stream, const char* text, std::size_t length) = 0;
        virtual void reported(const SoError& error) = 0;

    protected:
        ~Sink() = default;
    };

    static OutputTaps& getInstance();

    OutputTaps(const OutputTaps&) = delete;
    OutputTaps& operator=(const OutputTaps&) = delete;

    /// Begins to hear; the last end() of several gives all back.
    void begin();
    void end();
    bool isHearing() const { return m_users > 0; }
    /// Null for none. The sink before is called by nobody any more when this returns.
    void setSink(Sink* sink);
    /// After others may have installed something or given it back. Does nothing while it does not hear.
    void settle();
    /// Error handlers with this data were not given back, and have gone; they had taken over from the other.
    void bypassErrors(SoErrorCB* callback, void* data, SoErrorCB* nextCallback, void* nextData);

private:
    OutputTaps();
    ~OutputTaps();
    struct Chains;

    std::unique_ptr<Chains> m_chains;
    int m_users = 0;
};

/// What is done meanwhile may install buffers and error handlers, or give them back, in any order.
class OutputStep
{
public:
    OutputStep() { OutputTaps::getInstance().settle(); }
    OutputStep(const OutputStep&) = delete;
    OutputStep& operator=(const OutputStep&) = delete;
    ~OutputStep() { OutputTaps::getInstance().settle(); }
};

} // namespace scopix
