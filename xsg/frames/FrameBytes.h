// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace xsg
{

/// Numbers as bytes: seven bits each, the lowest first, the highest bit of a byte telling that more follow.
/// Signed numbers alternate around 0, so that small ones are short.
class FrameBytes
{
public:
    static void put(std::string& to, std::uint64_t value)
    {
        for (; value >= 0x80; value >>= 7)
            to += static_cast<char>(value | 0x80);
        to += static_cast<char>(value);
    }
    static void putSigned(std::string& to, std::int64_t value)
    {
        put(to, (static_cast<std::uint64_t>(value) << 1) ^ static_cast<std::uint64_t>(value >> 63));
    }
    static void putText(std::string& to, std::string_view text)
    {
        put(to, text.size());
        to += text;
    }

    explicit FrameBytes(std::string_view bytes)
        : m_bytes(bytes)
    {
    }
    bool isGood() const { return m_isGood; }
    bool isAtEnd() const { return m_bytes.empty(); }
    std::size_t getSize() const { return m_bytes.size(); }
    std::uint64_t get()
    {
        std::uint64_t value = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            if (m_bytes.empty())
                break;
            const auto byte = static_cast<unsigned char>(m_bytes.front());
            m_bytes.remove_prefix(1);
            value |= static_cast<std::uint64_t>(byte & 0x7F) << shift;
            if (byte < 0x80)
                return value;
        }
        m_isGood = false;
        return 0;
    }
    std::int64_t getSigned()
    {
        const std::uint64_t value = get();
        return static_cast<std::int64_t>(value >> 1) ^ -static_cast<std::int64_t>(value & 1);
    }
    std::string_view getBytes(std::uint64_t size)
    {
        m_isGood &= size <= m_bytes.size();
        if (!m_isGood)
            return {};
        const std::string_view bytes = m_bytes.substr(0, size);
        m_bytes.remove_prefix(size);
        return bytes;
    }
    std::string getText() { return std::string(getBytes(get())); }

private:
    std::string_view m_bytes;
    bool m_isGood = true;
};

} // namespace xsg
