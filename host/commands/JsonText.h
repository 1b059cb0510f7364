// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace scopix
{

/// Writes JSON as it goes, so that a scene of any size and depth needs no tree of values beside it. (Qt's
/// documents hold everything in memory, and no more than 128 MiB.)
class JsonText
{
public:
    void beginObject();
    void endObject();
    void beginArray();
    void endArray();
    void key(std::string_view name);
    /// Bytes that are no UTF-8 are taken as Latin-1, as names may have them.
    void text(std::string_view value);
    void number(std::int64_t value);
    void number(double value); // null where it is not finite
    void boolean(bool value);

    void text(std::string_view name, std::string_view value);
    void number(std::string_view name, std::int64_t value);
    void boolean(std::string_view name, bool value);

    /// What was written since it was last taken.
    std::string take();
    std::size_t size() const { return m_out.size(); }

private:
    void begin(char bracket);
    void end(char bracket);
    void separate();

    std::string m_out;
    std::vector<bool> m_isEmpty;
    bool m_afterKey = false;
};

} // namespace scopix
