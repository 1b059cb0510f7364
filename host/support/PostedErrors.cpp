// SPDX-License-Identifier: MIT
#include "support/PostedErrors.h"

#include "support/OutputTaps.h"
#include "support/Printable.h"
#include "support/StandardError.h"

#include <scopix/SpxSentence.h>
#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

namespace scopix
{

namespace
{

struct ErrorClass {
    SoErrorCB* (*getCallback)();
    void* (*getData)();
    void (*set)(SoErrorCB* callback, void* data);
};

template <class Error>
constexpr ErrorClass errorClass{&Error::getHandlerCallback, &Error::getHandlerData,
                                &Error::setHandlerCallback};

constexpr std::array<ErrorClass, 6> ErrorClasses{errorClass<SoDebugError>,  errorClass<SoError>,
                                                 errorClass<SoErrorStack>,  errorClass<SoGLError>,
                                                 errorClass<SoMemoryError>, errorClass<SoReadError>};

} // namespace

PostedErrors::PostedErrors()
{
    for (std::size_t i = 0; i < m_handlers.size(); ++i) {
        m_handlers[i] = {this, ErrorClasses[i].getCallback(), ErrorClasses[i].getData()};
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

QString PostedErrors::lastText() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_lastText;
}

void PostedErrors::handle(const SoError* error, void* data)
{
    const auto& handler = *static_cast<const Handler*>(data);
    handler.owner->print(printable(SpxSentence::translated(error->getSentence())));
    if (handler.callback && handler.callback != SoError::defaultHandler)
        handler.callback(error, handler.data);
}

void PostedErrors::print(const QString& text)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_lastText = text;
    printOnStandardError(text);
}

} // namespace scopix
