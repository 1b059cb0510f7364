// While it lives, the calling thread reads and writes numbers with a decimal point, whatever the user's locale: the
// model formats want that, and the importer's number routines follow the locale.
#pragma once

#include <locale.h>

class CNumbers
{
public:
    CNumbers()
        : m_locale(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr))))
        , m_before(uselocale(m_locale))
    {
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;
    ~CNumbers()
    {
        uselocale(m_before);
        freelocale(m_locale);
    }

private:
    locale_t m_locale;
    locale_t m_before;
};
