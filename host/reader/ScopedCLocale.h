// SPDX-License-Identifier: MIT
#pragma once

#include <locale.h>

namespace scopix
{

/// While it lives, the calling thread works in the C locale, numbers with a decimal point, whatever the
/// user's: the model formats want that, and the importer's number routines follow the locale.
class ScopedCLocale
{
public:
    ScopedCLocale()
        /// The whole "C" locale is there already; one for the numbers alone would have to be made.
        : m_before(uselocale(newlocale(LC_ALL_MASK, "C", nullptr)))
    {
    }
    ScopedCLocale(const ScopedCLocale&) = delete;
    ScopedCLocale& operator=(const ScopedCLocale&) = delete;
    ~ScopedCLocale() { uselocale(m_before); }

private:
    locale_t m_before;
};

} // namespace scopix
