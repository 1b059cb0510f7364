// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <cstddef>

class SoError;

/// Is told what the process writes to the C++ streams and what the scene graph reports, whoever else handles
/// it. Any thread: the one that writes or reports. It may neither write nor report itself, and must be quick,
/// since whoever writes waits meanwhile.
class SPX_API SpxOutputListener
{
public:
    enum class Stream { Output, Error, Log }; // std::cout, std::cerr, std::clog

    SpxOutputListener() = default;
    SpxOutputListener(const SpxOutputListener&) = delete;
    SpxOutputListener& operator=(const SpxOutputListener&) = delete;
    virtual ~SpxOutputListener();

    /// In the blocks in which it is written: neither lines nor whole characters, and no NUL at the end.
    virtual void written(Stream stream, const char* text, std::size_t length) = 0;
    virtual void reported(const SoError& error) = 0;
};

/// What a host may offer beside its services: hearing what is written, once, above all buffers and error
/// handlers that others install, which get it too as if nobody listened. Extensions may install and give back
/// buffers and handlers of their own while they are loaded, activated, deactivated or unloaded, in any order.
/// Made and destroyed by the host. GUI thread only.
class SPX_API SpxOutput
{
public:
    /// Null where the host does not offer this.
    static SpxOutput* getInstance();

    SpxOutput(const SpxOutput&) = delete;
    SpxOutput& operator=(const SpxOutput&) = delete;

    /// Not owned.
    virtual void addListener(SpxOutputListener* listener) = 0;
    /// The listener is called on no thread any more when this returns.
    virtual void removeListener(SpxOutputListener* listener) = 0;

protected:
    SpxOutput();
    virtual ~SpxOutput();
};
