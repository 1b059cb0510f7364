// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/errors/SoError.h>

#include <mutex>
#include <string>
#include <vector>

/// Collects the errors of one class while it lives, and puts the handler back that was there.
template <class Error>
class Collected
{
public:
    Collected()
        : m_callback(Error::getHandlerCallback())
        , m_data(Error::getHandlerData())
    {
        Error::setHandlerCallback(take, this);
    }
    Collected(const Collected&) = delete;
    Collected& operator=(const Collected&) = delete;
    ~Collected() { Error::setHandlerCallback(m_callback, m_data); }

    std::vector<std::string> texts;

private:
    static void take(const SoError* error, void* data)
    {
        static_cast<Collected*>(data)->texts.push_back(error->getDebugString().str());
    }
    SoErrorCB* m_callback;
    void* m_data;
};
