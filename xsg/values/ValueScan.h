// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>
#include <string_view>

namespace xsg
{

/// Finds where a field's value ends in the text of a scene, which may become known piece by piece: a list
/// ends with its bracket, anything else before the line's end, a mark, a brace or a comment.
class XSG_API ValueScan
{
public:
    /// `text` starts with the value and is, each time, what was given before and more. True when the end was
    /// found; what was looked at once is not looked at again.
    bool advance(std::string_view text);

    /// Up to the end of the value, or of what was looked at.
    std::size_t getLength() const { return m_at; }
    /// Where the list or the text in quotes begins whose end was not found, or npos where the value may end
    /// with the text.
    std::size_t getOpen() const;

private:
    bool skipQuoted(std::string_view text);

    static constexpr std::size_t None = std::string_view::npos;
    std::size_t m_at = 0;
    std::size_t m_quote = None; // where the quotes begin that it is in
    bool m_isList = false;
    bool m_isFound = false;
};

} // namespace xsg
