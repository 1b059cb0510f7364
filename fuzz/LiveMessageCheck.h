// SPDX-License-Identifier: MIT
#pragma once

#include "Check.h"

#include <scopix/live/protocol/MessageBuffer.h>

#include <algorithm>

namespace fuzz
{

/// Bytes from a socket, in pieces: each message in them is refused, or is written as it was read.
class LiveMessageCheck
{
public:
    void operator()(const std::uint8_t* data, std::size_t size) const
    {
        scopix::live::MessageBuffer buffer(std::size_t(1) << 20);
        for (std::size_t place = 0; place < size;) {
            const std::size_t piece = std::min<std::size_t>(size - place, data[place] % 61 + 1U);
            buffer.add(data + place, piece);
            place += piece;
            while (const auto message = buffer.take())
                checkMessage(*message);
        }
    }

private:
    static void checkMessage(const scopix::live::Message& message)
    {
        namespace live = scopix::live;
        live::forEachOf(live::Questions(), [&message](auto type) {
            check<live::Parameters<type()>>(message, type());
            check<live::AnswerOf<type()>>(message, type());
        });
        live::forEachOf(live::Requests(),
                        [&message](auto type) { check<live::Parameters<type()>>(message, type()); });
        live::forEachOf(live::Events(),
                        [&message](auto type) { check<live::Parameters<type()>>(message, type()); });
        check<live::Greeting>(message, live::MessageType::Hello);
        check<live::Introduction>(message, live::MessageType::Hello);
    }

    template <class Contents>
    static void check(const scopix::live::Message& message, scopix::live::MessageType type)
    {
        namespace live = scopix::live;
        if (!message.is(type))
            return;
        const auto contents = live::contentsOf<Contents>(message);
        if (!contents)
            return;
        const live::Bytes again = live::packedMessage(type, message.id, *contents);
        require(live::Bytes(again.begin() + live::HeadSize, again.end()) == message.contents,
                "a message that was read is written otherwise: " + std::to_string(message.type));
    }
};

} // namespace fuzz
