// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveExport.h>

#include <functional>
#include <memory>
#include <string>

namespace scopix::live
{

class Adapter;

/// Lets inspectors attach to this program, over a Unix socket in a folder that only its user can enter.
///
/// A thread of its own accepts and reads; everything that touches the scene happens in `betweenFrames`. Not
/// copyable. The program owns it and ends it before its adapter. Where no socket can be made `problem` says
/// why in a sentence, and nothing else happens.
class SCOPIX_LIVE_API Server
{
public:
    /// `name`: what inspectors list the program as; empty: the name of its executable.
    explicit Server(Adapter& adapter, const std::string& name = {});
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    /// Call once a frame in the thread that may change the scene. Costs one relaxed atomic load while nobody
    /// is attached.
    void betweenFrames();

    /// Milliseconds of a frame that answers may take (2 where nothing is set); what is left over waits for
    /// the next frame. Only a single question that takes longer goes beyond.
    void setBudget(double milliseconds);
    /// Called, mostly in the server's own thread, when a question waits: for programs that draw when
    /// something has changed only, which then post themselves an event that leads to `betweenFrames`. Set it
    /// before the first frame; it throws nothing.
    void setWake(std::function<void()> wake);

    /// Whether an inspector is attached.
    bool isAttached() const noexcept;
    const std::string& socketPath() const noexcept;
    const std::string& problem() const noexcept;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};

} // namespace scopix::live
