// SPDX-License-Identifier: MIT
#include "table/RowOrder.h"

#include <algorithm>

namespace inspector
{

int RowOrder::rowOf(int element) const
{
    if (m_isNatural)
        return element;
    const auto found = m_isAscending ? std::lower_bound(m_elements.begin(), m_elements.end(), element)
                                     : std::find(m_elements.begin(), m_elements.end(), element);
    return found != m_elements.end() && *found == element ? int(found - m_elements.begin()) : -1;
}

} // namespace inspector
