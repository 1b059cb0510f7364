// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveValue.h>

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace scopix::live
{

using Bytes = std::vector<std::uint8_t>;

/// Appends values to bytes, in the byte order of the machine. What a structure consists of says its
/// `describe`, in Contents.h, which Writer and Reader share.
class Writer
{
public:
    template <class... T>
    void operator()(const T&... parts)
    {
        (put(parts), ...);
    }

    Bytes& bytes() noexcept { return m_bytes; }

    /// What a reader refuses, nobody writes: the server looks before it does.
    void require(bool) const noexcept {}

private:
    void putBytes(const void* data, std::size_t size)
    {
        const auto* start = static_cast<const std::uint8_t*>(data);
        m_bytes.insert(m_bytes.end(), start, start + size);
    }
    void putSize(std::size_t size) { put(static_cast<std::uint32_t>(size)); }

    template <class T>
    void put(const T& part)
    {
        if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>)
            putBytes(&part, sizeof part);
        else
            describe(*this, const_cast<T&>(part)); // describe() takes the parts of a reader too
    }
    template <class T, std::size_t Count>
    void put(const T (&parts)[Count])
    {
        for (const T& part : parts)
            put(part);
    }
    template <class T>
    void put(const std::vector<T>& parts)
    {
        putSize(parts.size());
        if constexpr (std::is_arithmetic_v<T>) {
            putBytes(parts.data(), parts.size() * sizeof(T));
        } else {
            for (const T& part : parts)
                put(part);
        }
    }
    template <class T>
    void put(const std::optional<T>& part)
    {
        put(part.has_value());
        if (part)
            put(*part);
    }
    template <class... T>
    void put(const std::tuple<T...>& parts)
    {
        std::apply([this](const T&... each) { (*this)(each...); }, parts);
    }
    void put(const std::string& text)
    {
        putSize(text.size());
        putBytes(text.data(), text.size());
    }

    Bytes m_bytes;
};

/// Reads what a Writer has written, from bytes that anybody may have sent: it never reads beyond them, and
/// takes no more memory than a small multiple of them, whatever sizes they name. What it has read is worth
/// something if `isComplete`.
class Reader
{
public:
    explicit Reader(const Bytes& bytes)
        : m_place(bytes.data())
        , m_end(bytes.data() + bytes.size())
    {
    }

    template <class... T>
    void operator()(T&... parts)
    {
        (get(parts), ...);
    }

    /// What has been read is worth nothing where this does not hold.
    void require(bool holds) noexcept { m_good = m_good && holds; }
    /// Whether all was there so far.
    bool isGood() const noexcept { return m_good; }
    /// Whether all was there and nothing is left over.
    bool isComplete() const noexcept { return m_good && m_place == m_end; }

private:
    std::size_t left() const noexcept { return static_cast<std::size_t>(m_end - m_place); }
    void fail() noexcept { m_good = false; }

    bool getBytes(void* data, std::size_t size)
    {
        if (!m_good || size > left()) {
            fail();
            return false;
        }
        if (size > 0)
            std::memcpy(data, m_place, size);
        m_place += size;
        return true;
    }
    // How many elements follow of which each one takes at least that many bytes.
    std::size_t getCount(std::size_t leastBytes)
    {
        std::uint32_t count = 0;
        get(count);
        if (m_good && count <= left() / leastBytes)
            return count;
        fail();
        return 0;
    }
    // A boolean or an enumeration that is none would be undefined behaviour.
    template <class T>
    void getByteUpTo(T& part, std::uint8_t most)
    {
        std::uint8_t number = 0;
        get(number);
        if (number > most)
            fail();
        else
            part = static_cast<T>(number);
    }

    template <class T>
    void get(T& part)
    {
        if constexpr (std::is_enum_v<T>)
            getByteUpTo(part, greatestOf(part));
        else if constexpr (std::is_arithmetic_v<T>)
            getBytes(&part, sizeof part);
        else
            describe(*this, part);
    }
    void get(bool& part) { getByteUpTo(part, 1); }
    template <class T, std::size_t Count>
    void get(T (&parts)[Count])
    {
        for (T& part : parts)
            get(part);
    }
    template <class T>
    void get(std::vector<T>& parts)
    {
        if constexpr (std::is_arithmetic_v<T>) {
            parts.resize(getCount(sizeof(T)));
            getBytes(parts.data(), parts.size() * sizeof(T));
        } else {
            parts.clear();
            for (std::size_t count = getCount(4); count > 0 && m_good; --count)
                get(parts.emplace_back());
        }
    }
    template <class T>
    void get(std::optional<T>& part)
    {
        bool isThere = false;
        get(isThere);
        if (isThere && m_good)
            get(part.emplace());
    }
    template <class... T>
    void get(std::tuple<T...>& parts)
    {
        std::apply([this](T&... each) { (*this)(each...); }, parts);
    }
    void get(std::string& text)
    {
        text.resize(getCount(1));
        getBytes(text.data(), text.size());
    }

    const std::uint8_t* m_place;
    const std::uint8_t* m_end;
    bool m_good = true;
};

} // namespace scopix::live
