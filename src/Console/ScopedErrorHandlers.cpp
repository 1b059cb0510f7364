// SPDX-License-Identifier: MIT
#include "ScopedErrorHandlers.h"

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

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

// The order of saving and of putting back.
const std::array<ErrorClass, 6> ErrorClasses{errorClass<SoDebugError>,  errorClass<SoError>,
                                             errorClass<SoErrorStack>,  errorClass<SoGLError>,
                                             errorClass<SoMemoryError>, errorClass<SoReadError>};

} // namespace

ScopedErrorHandlers::ScopedErrorHandlers(SoErrorCB* callback, void* data)
{
    for (std::size_t i = 0; i < m_saved.size(); ++i)
        m_saved[i] = {ErrorClasses[i].getCallback(), ErrorClasses[i].getData()};
    for (const ErrorClass& errorClass : ErrorClasses)
        errorClass.set(callback, data);
}

ScopedErrorHandlers::~ScopedErrorHandlers()
{
    for (std::size_t i = 0; i < m_saved.size(); ++i)
        ErrorClasses[i].set(m_saved[i].callback, m_saved[i].data);
}
