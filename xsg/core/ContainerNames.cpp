// SPDX-License-Identifier: MIT
#include <xsg/core/ContainerNames.h>

#include <xsg/core/SoFieldContainer.h>

#include <algorithm>

void xsg::ContainerNames::rename(SbName name, const SoFieldContainer* container)
{
    Names& names = m_names[container];
    removeHolder(names.own, container);
    names.own = name;
    addHolder(name, container);
}

void xsg::ContainerNames::remove(const SoFieldContainer* container)
{
    const auto known = m_names.find(container);
    if (known == m_names.end())
        return;
    removeHolder(known->second.own, container);
    removeHolder(known->second.substitute, container);
    m_names.erase(known);
}

void xsg::ContainerNames::addHolder(SbName name, const SoFieldContainer* container)
{
    if (name != SbName())
        m_byName[name.getString()].push_back(container);
}

void xsg::ContainerNames::removeHolder(SbName name, const SoFieldContainer* container)
{
    const auto holders = m_byName.find(name.getString());
    if (holders == m_byName.end())
        return;
    auto& all = holders->second;
    all.erase(std::remove(all.begin(), all.end(), container), all.end());
    if (all.empty())
        m_byName.erase(holders);
}

SoFieldContainer* xsg::ContainerNames::find(SbName name) const
{
    const auto holders = m_byName.find(name.getString());
    return holders == m_byName.end() ? nullptr : const_cast<SoFieldContainer*>(holders->second.back());
}

SbName xsg::ContainerNames::substituteFor(const SoFieldContainer* container)
{
    Names& names = m_names[container];
    if (names.substitute == SbName()) {
        const std::string type = container->getTypeId().getName().getString();
        names.substitute = SbName((type + '#' + std::to_string(++m_lastNumber)).c_str());
        addHolder(names.substitute, container);
    }
    return names.substitute;
}
