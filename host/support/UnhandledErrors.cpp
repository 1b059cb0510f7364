// SPDX-License-Identifier: MIT
#include "support/UnhandledErrors.h"

#include "support/ErrorClasses.h"
#include "support/StandardError.h"

#include <atomic>

namespace scopix
{

namespace
{

std::atomic<int> s_users{0};
std::atomic<int> s_holders{0};

// Without data: whoever has taken over from it may call it when nobody needs it any more.
void print(const SoError* error, void* /*data*/)
{
    if (s_users == 0)
        SoError::defaultHandler(error, nullptr);
    else if (s_holders == 0)
        printPosted(*error);
}

} // namespace

UnhandledErrors::UnhandledErrors()
{
    if (s_users++ > 0)
        return;
    for (const ErrorClass& each : ErrorClasses)
        if (each.getCallback() == &SoError::defaultHandler)
            each.set(print, nullptr);
}

UnhandledErrors::~UnhandledErrors()
{
    if (--s_users > 0)
        return;
    for (const ErrorClass& each : ErrorClasses)
        if (each.getCallback() == &print)
            each.set(SoError::defaultHandler, nullptr);
}

UnhandledErrors::Held::Held()
{
    ++s_holders;
}

UnhandledErrors::Held::~Held()
{
    --s_holders;
}

} // namespace scopix
