// SPDX-License-Identifier: MIT
#include "support/PostedErrors.h"

#include "support/ErrorClasses.h"
#include "support/OutputTaps.h"
#include "support/StandardError.h"

namespace scopix
{

PostedErrors::PostedErrors()
{
    for (std::size_t i = 0; i < m_handlers.size(); ++i) {
        m_handlers[i] = {ErrorClasses[i].getCallback(), ErrorClasses[i].getData()};
        ErrorClasses[i].set(handle, &m_handlers[i]);
    }
}

// What another has taken over since is that one's to give back.
PostedErrors::~PostedErrors()
{
    for (std::size_t i = 0; i < m_handlers.size(); ++i) {
        if (ErrorClasses[i].getData() == &m_handlers[i])
            ErrorClasses[i].set(m_handlers[i].callback, m_handlers[i].data);
        else
            OutputTaps::getInstance().bypassErrors(handle, &m_handlers[i], m_handlers[i].callback,
                                                   m_handlers[i].data);
    }
}

void PostedErrors::handle(const SoError* error, void* data)
{
    const auto& handler = *static_cast<const Handler*>(data);
    printPosted(*error);
    if (handler.callback && handler.callback != SoError::defaultHandler)
        handler.callback(error, handler.data);
}

} // namespace scopix
