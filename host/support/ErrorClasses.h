// SPDX-License-Identifier: MIT
// The handlers of all classes of errors that the scene graph posts, each of which has its own.
#pragma once

#include <xsg/errors/SoDebugError.h>
#include <xsg/errors/SoErrorStack.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/errors/SoMemoryError.h>
#include <xsg/errors/SoReadError.h>

#include <array>

namespace scopix
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

} // namespace scopix
