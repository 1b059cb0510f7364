// SPDX-License-Identifier: MIT
// What an ignored field counts as.
#pragma once

namespace xsg
{

/// The field's value, or the given one while the field is ignored.
template <class Field>
typename Field::Value effectiveValue(const Field& field, const typename Field::Value& otherwise)
{
    return field.isIgnored() ? otherwise : field.getValue();
}

} // namespace xsg
