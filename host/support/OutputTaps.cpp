// SPDX-License-Identifier: MIT
#include "support/OutputTaps.h"

#include "support/TapChain.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

#include <iostream>
#include <mutex>
#include <new>
#include <streambuf>

namespace scopix
{

namespace
{

/// Where everything that is heard arrives. Never destroyed.
class Ear
{
public:
    void setSink(OutputTaps::Sink* sink)
    {
        const std::lock_guard lock(m_mutex);
        m_sink = sink;
    }
    template <class Tell>
    void hear(Tell tell)
    {
        thread_local bool s_isTelling = false;
        if (s_isTelling)
            return;
        const std::lock_guard lock(m_mutex);
        s_isTelling = true;
        try {
            if (m_sink)
                tell(*m_sink);
        } catch (...) { // a listener's trouble is not the writer's
        }
        s_isTelling = false;
    }

private:
    std::mutex m_mutex;
    OutputTaps::Sink* m_sink = nullptr;
};

Ear& ear()
{
    static Ear* const s_ear = new Ear;
    return *s_ear;
}

class StreamTap : public Tap<std::streambuf*>, public std::streambuf
{
public:
    StreamTap(const void* chain, OutputTaps::Stream stream)
        : Tap(chain)
        , m_stream(stream)
    {
    }

protected:
    std::streamsize xsputn(const char* text, std::streamsize length) override
    {
        const Visit visit(*this);
        hear(visit, text, std::size_t(length));
        std::streambuf* below = getBelow();
        return below ? below->sputn(text, length) : 0;
    }
    int overflow(int character) override
    {
        const Visit visit(*this);
        if (character == std::char_traits<char>::eof())
            return 0;
        const char c = std::char_traits<char>::to_char_type(character);
        hear(visit, &c, 1);
        std::streambuf* below = getBelow();
        return below ? below->sputc(c) : std::char_traits<char>::eof();
    }
    int sync() override
    {
        const Visit visit(*this);
        std::streambuf* below = getBelow();
        return below ? below->pubsync() : 0;
    }

private:
    void hear(const Visit& visit, const char* text, std::size_t length)
    {
        if (visit.isNew())
            ear().hear([&](OutputTaps::Sink& sink) { sink.written(m_stream, text, length); });
    }

    OutputTaps::Stream m_stream;
};

struct StreamSlot {
    using Target = std::streambuf*;
    using SlotTap = StreamTap;

    Target get() const { return stream->rdbuf(); }
    void set(Target target) const { stream->rdbuf(target); }
    static Target targetOf(SlotTap& tap) { return &tap; }
    std::unique_ptr<SlotTap> makeTap(const void* chain) const
    {
        return std::make_unique<StreamTap>(chain, number);
    }

    std::ostream* stream;
    OutputTaps::Stream number;
};

struct ErrorTarget {
    SoErrorCB* callback = nullptr;
    void* data = nullptr;
    bool operator==(const ErrorTarget& other) const
    {
        return callback == other.callback && data == other.data;
    }
};

/// Of the two words in which a handler comes, so that they are exchanged as one.
class ErrorTap : public Tap<const ErrorTarget*>
{
public:
    explicit ErrorTap(const void* chain)
        : Tap(chain)
    {
    }
    static void handle(const SoError* error, void* tap)
    {
        auto& self = *static_cast<ErrorTap*>(tap);
        const Visit visit(self);
        if (visit.isNew())
            ear().hear([&](OutputTaps::Sink& sink) { sink.reported(*error); });
        const ErrorTarget* below = self.getBelow();
        if (below && below->callback)
            below->callback(error, below->data);
    }
    const ErrorTarget own{&ErrorTap::handle, this};
};

/// The targets that were met, each once and for ever: there are as many as handlers in the process.
const ErrorTarget* known(const ErrorTarget& target)
{
    static auto* const s_known = new std::vector<std::unique_ptr<ErrorTarget>>;
    for (const auto& each : *s_known) {
        if (*each == target)
            return each.get();
    }
    s_known->push_back(std::make_unique<ErrorTarget>(target));
    return s_known->back().get();
}

struct ErrorSlot {
    using Target = const ErrorTarget*;
    using SlotTap = ErrorTap;

    Target get() const
    {
        const ErrorTarget now{getCallback(), getData()};
        return now.callback == &ErrorTap::handle ? &static_cast<ErrorTap*>(now.data)->own : known(now);
    }
    void set(Target target) const { setHandler(target->callback, target->data); }
    static Target targetOf(SlotTap& tap) { return &tap.own; }
    static std::unique_ptr<SlotTap> makeTap(const void* chain) { return std::make_unique<ErrorTap>(chain); }

    SoErrorCB* (*getCallback)();
    void* (*getData)();
    void (*setHandler)(SoErrorCB* callback, void* data);
};

template <class Class>
constexpr ErrorSlot errorSlot{&Class::getHandlerCallback, &Class::getHandlerData, &Class::setHandlerCallback};

} // namespace

struct OutputTaps::Chains {
    template <class Act>
    void each(Act act)
    {
        for (auto& chain : streams)
            act(chain);
        for (auto& chain : errors)
            act(chain);
    }

    TapChain<StreamSlot> streams[3] = {TapChain(StreamSlot{&std::cout, Output}),
                                       TapChain(StreamSlot{&std::cerr, Error}),
                                       TapChain(StreamSlot{&std::clog, Log})};
    TapChain<ErrorSlot> errors[6] = {TapChain(errorSlot<SoDebugError>),  TapChain(errorSlot<SoError>),
                                     TapChain(errorSlot<SoErrorStack>),  TapChain(errorSlot<SoGLError>),
                                     TapChain(errorSlot<SoMemoryError>), TapChain(errorSlot<SoReadError>)};
};

// Never destroyed: text may come until the very end of the process.
OutputTaps& OutputTaps::getInstance()
{
    static auto* const s_taps = new OutputTaps;
    return *s_taps;
}

OutputTaps::OutputTaps()
    : m_chains(std::make_unique<Chains>())
{
}

OutputTaps::~OutputTaps() = default;

void OutputTaps::begin()
{
    ++m_users;
    settle();
}

void OutputTaps::end()
{
    if (--m_users == 0)
        m_chains->each([](auto& chain) { chain.end(); });
}

void OutputTaps::setSink(Sink* sink)
{
    ear().setSink(sink);
}

void OutputTaps::settle()
{
    if (m_users == 0)
        return;
    try {
        m_chains->each([](auto& chain) { chain.settle(); });
    } catch (const std::bad_alloc&) { // the next time, then
    }
}

void OutputTaps::bypassErrors(SoErrorCB* callback, void* data, SoErrorCB* nextCallback, void* nextData)
{
    for (auto& chain : m_chains->errors) {
        const bool isTap = nextCallback == &ErrorTap::handle;
        chain.bypass(known({callback, data}),
                     isTap ? &static_cast<ErrorTap*>(nextData)->own : known({nextCallback, nextData}));
    }
}

} // namespace scopix
