// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace xsg
{

/// The text of a scene while it is read: one that is in memory as a whole, or one that comes piece by piece,
/// of which no more is kept than what was not passed yet. Positions count from the start of the text. It ends
/// before its first byte 0, which no text has.
class XSG_API SceneText
{
public:
    /// Fills up to `size` bytes and returns how many; 0 at the end.
    using Source = std::function<std::size_t(char* to, std::size_t size)>;
    /// Counted from 1; the column in bytes.
    struct Place {
        int line;
        int column;
    };

    /// `whole` must outlive it.
    explicit SceneText(std::string_view whole);
    explicit SceneText(Source source);
    SceneText(const SceneText&) = delete;
    SceneText& operator=(const SceneText&) = delete;

    /// Whether there is something at this position; loads it where it must.
    bool has(std::size_t at) { return at < getEnd() || (load() && has(at)); }
    /// 0 at the end.
    char at(std::size_t at) { return has(at) ? m_known[at - m_start] : '\0'; }
    /// What is loaded from there on; valid until something is loaded or passed.
    std::string_view from(std::size_t at) const { return m_known.substr(at - m_start); }
    std::size_t getEnd() const { return m_start + m_known.size(); }
    /// Loads `size` more bytes, or fewer; false when there are none.
    bool load(std::size_t size = PieceBytes);

    /// What lies before is of no use any more.
    void pass(std::size_t at);
    /// Of a position that was not passed.
    Place placeOf(std::size_t at) const;

    /// More text was asked for than there is before a byte 0.
    bool isCutShort() const { return m_isCutShort; }

    static constexpr std::size_t PieceBytes = std::size_t{256} << 10U;

private:
    void cutAtZero(std::size_t from);
    void dropPassed(std::size_t at);

    Source m_source; // null when all is loaded
    std::string m_buffer;
    std::string_view m_known;  // of the buffer, or of a text in memory
    std::size_t m_start = 0;   // the position of its first byte
    std::size_t m_counted = 0; // lines up to here
    std::size_t m_lineStart = 0;
    int m_line = 1;
    bool m_hasZero = false;
    bool m_isCutShort = false;
};

} // namespace xsg
