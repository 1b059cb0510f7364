// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbName.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

class SoFieldContainer;

namespace xsg
{

/// The living containers by their names. Belongs to the graph's thread.
class ContainerNames
{
public:
    void rename(SbName name, const SoFieldContainer* container);
    /// Takes the container out under all its names.
    void remove(const SoFieldContainer* container);
    SoFieldContainer* find(SbName name) const;
    /// A name that the container has for itself; the same one each time.
    SbName substituteFor(const SoFieldContainer* container);

private:
    std::unordered_map<const char*, std::vector<const SoFieldContainer*>> m_byName;
    struct Names {
        SbName own;
        SbName substitute;
    };
    void addHolder(SbName name, const SoFieldContainer* container);
    void removeHolder(SbName name, const SoFieldContainer* container);

    std::unordered_map<const SoFieldContainer*, Names> m_names;
    std::uint64_t m_lastNumber = 0;
};

} // namespace xsg
