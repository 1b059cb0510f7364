// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/PatchApplication.h>
#include <xsg/changes/SceneChange.h>
#include <xsg/paths/ChildTable.h>

#include <unordered_map>

namespace xsg
{

/// Gives fields the states that changes say, in an order in which connections do not overwrite what was
/// given.
class FieldApplication
{
public:
    /// `watch` may be null.
    FieldApplication(SceneLookup& lookup, PatchWatch* watch)
        : m_lookup(lookup)
        , m_watch(watch)
    {
    }

    /// Finds the field; `change` must live as long as this. False, and why, where there is none.
    bool add(const SceneChange& change, SbSentence& problem);
    void apply();

    int getApplied() const { return m_applied; }
    int getAlreadySo() const { return m_alreadySo; }
    const std::vector<std::pair<const SceneChange*, SbSentence>>& getMisfits() const { return m_misfits; }

private:
    struct Item {
        const SceneChange* change;
        SoField* field;
        SoField* source;
        SbString value; // as the field takes it; null for the default
        bool wasSame = false;
        bool isDone = false;
    };

    bool findValue(Item& item, SbSentence& problem);
    void findSource(Item& item);
    bool textOfNodes(const Item& item, std::string& text, SbSentence& problem);
    bool isSame(const Item& item) const;
    bool write(Item& item, bool propagates);
    bool reset(SoField& field);
    void setElement(Item& item);
    void setPlain(Item& item);
    void settleConnected(Item& item);
    void misfit(Item& item, const SbSentence& reason);

    SceneLookup& m_lookup;
    PatchWatch* m_watch;
    std::vector<Item> m_items;
    std::unordered_map<std::string, SoRef<SoNode>> m_fresh; // by type
    std::vector<std::pair<const SceneChange*, SbSentence>> m_misfits;
    int m_applied = 0;
    int m_alreadySo = 0;
};

} // namespace xsg
