// SPDX-License-Identifier: MIT
#include <xsg/values/SbName.h>

#include <mutex>
#include <unordered_set>

namespace
{

const char* intern(std::string text)
{
    // Never destroyed: names are used by statics whose order of destruction is unknown.
    static auto& mutex = *new std::mutex;
    static auto& names = *new std::unordered_set<std::string>;
    const std::lock_guard<std::mutex> lock(mutex);
    return names.insert(std::move(text)).first->c_str();
}

const char* emptyName()
{
    static const char* const empty = intern({});
    return empty;
}

} // namespace

SbName::SbName()
    : m_text(emptyName())
{
}

SbName::SbName(const char* text)
    : m_text(text && *text ? intern(text) : emptyName())
{
}

SbName::SbName(const SbString& text)
    : SbName(text.getString())
{
}
