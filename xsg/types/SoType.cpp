// SPDX-License-Identifier: MIT
#include <xsg/types/SoType.h>

#include <xsg/types/TypeRegistration.h>

#include <deque>
#include <mutex>
#include <unordered_map>

struct SoType::Data {
    SbName name;
    SoType parent;
    Factory factory = nullptr;
};

namespace
{

std::mutex& registryMutex()
{
    static auto& mutex = *new std::mutex;
    return mutex;
}

void (*registration)() = nullptr;

void registerBuiltInTypes()
{
    if (registration)
        registration();
}

} // namespace

void xsg::setTypeRegistration(void (*registerTypes)())
{
    registration = registerTypes;
}

// Entries are never freed: an SoType is a plain pointer that anyone may hold.
template <class Data>
struct Registry {
    std::deque<Data> entries;
    std::unordered_map<const char*, Data*> byName;
};

template <class Data>
static Registry<Data>& registry()
{
    static auto& instance = *new Registry<Data>;
    return instance;
}

SoType SoType::createType(SoType parent, SbName name, Factory factory)
{
    const std::lock_guard<std::mutex> lock(registryMutex());
    auto& all = registry<Data>();
    const auto known = all.byName.find(name.getString());
    if (known != all.byName.end())
        return SoType(known->second);
    Data& data = all.entries.emplace_back();
    data.name = name;
    data.parent = parent;
    data.factory = factory;
    all.byName.emplace(name.getString(), &data);
    return SoType(&data);
}

SoType SoType::fromName(SbName name)
{
    registerBuiltInTypes();
    const std::lock_guard<std::mutex> lock(registryMutex());
    const auto& byName = registry<Data>().byName;
    const auto known = byName.find(name.getString());
    return known == byName.end() ? SoType() : SoType(known->second);
}

std::vector<SoType> SoType::getAllDerivedFrom(SoType type)
{
    registerBuiltInTypes();
    const std::lock_guard<std::mutex> lock(registryMutex());
    std::vector<SoType> found;
    for (const Data& data : registry<Data>().entries) {
        const SoType candidate(&data);
        if (candidate.isDerivedFrom(type))
            found.push_back(candidate);
    }
    return found;
}

SbName SoType::getName() const
{
    return m_data ? m_data->name : SbName("BadType");
}

bool SoType::isDerivedFrom(SoType ancestor) const
{
    if (ancestor.isBad())
        return false;
    for (const Data* data = m_data; data; data = data->parent.m_data) {
        if (data == ancestor.m_data)
            return true;
    }
    return false;
}

bool SoType::canCreateInstance() const
{
    return m_data && m_data->factory;
}

SoTypedObject* SoType::createInstance() const
{
    const Factory factory = m_data ? m_data->factory : nullptr;
    return factory ? factory() : nullptr;
}
