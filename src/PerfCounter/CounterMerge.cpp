// SPDX-License-Identifier: MIT
#include "CounterMerge.h"

#include "CounterProfileFile.h"
#include "SoPerfCounterProfile.h"

#include <QDomDocument>
#include <QHash>

namespace counterMerge
{
namespace
{

using namespace counterProfileFile;

// Several profiles may have one name.
using Key = QPair<QString, int>;

struct Profiles {
    QList<Key> order;
    QHash<Key, QDomElement> elements;
};

Profiles profilesOf(const QDomDocument& document)
{
    Profiles all;
    QHash<QString, int> seen;
    const QList<QDomElement> elements = childrenOf(document, Section::Profiles);
    for (const QDomElement& element : elements) {
        const QString name = element.attribute(QStringLiteral("name"));
        all.order.append({name, seen[name]++});
        all.elements.insert(all.order.last(), element);
    }
    return all;
}

bool isSame(const Lists& one, const Lists& other)
{
    return one.counters == other.counters && one.view == other.view;
}

Lists listsOf(const QDomElement& profile)
{
    return {readCounters(profile), readView(profile)};
}

// What the other program alone has changed.
Lists merged(const Lists& mine, const Lists& base, const Lists& theirs)
{
    return {mine.counters == base.counters ? theirs.counters : mine.counters,
            mine.view == base.view ? theirs.view : mine.view};
}

class Merge
{
public:
    Merge(QDomDocument& mine, const QDomDocument& base, const QDomDocument& theirs)
        : m_document(mine)
        , m_theirs(theirs)
        , m_base(base)
    {
    }

    Joined run()
    {
        joinCounters();
        joinProfiles();
        return m_joined;
    }

private:
    void joinCounters()
    {
        QStringList known;
        for (const QDomDocument* document : {&m_base, static_cast<const QDomDocument*>(&m_document)}) {
            for (const QDomElement& counter : childrenOf(*document, Section::Counters))
                known.append(counter.attribute(QStringLiteral("name")));
        }
        for (const QDomElement& counter : childrenOf(m_theirs, Section::Counters)) {
            if (known.contains(counter.attribute(QStringLiteral("name"))))
                continue;
            appendCopy(m_document, Section::Counters, counter);
            m_joined.isChanged = true;
        }
    }

    void joinProfiles()
    {
        const Profiles mine = profilesOf(m_document);
        const Profiles base = profilesOf(m_base);
        const Profiles theirs = profilesOf(m_theirs);
        for (const Key& key : theirs.order)
            joinProfile(key, mine.elements.value(key), base.elements.value(key), theirs.elements.value(key));
    }

    void joinProfile(const Key& key, const QDomElement& mine, const QDomElement& base,
                     const QDomElement& theirs)
    {
        const Lists now = listsOf(theirs);
        if (!base.isNull() && isSame(listsOf(base), now))
            return; // as it was
        if (base.isNull() ? mine.isNull() || !isSame(listsOf(mine), now) : mine.isNull())
            add(theirs, now);
        else if (!base.isNull())
            change(key, mine, merged(listsOf(mine), listsOf(base), now));
    }

    void add(const QDomElement& theirs, const Lists& now)
    {
        const QString name = theirs.attribute(QStringLiteral("name"));
        int occurrence = 0;
        for (const QDomElement& element : childrenOf(m_document, Section::Profiles))
            occurrence += int(element.attribute(QStringLiteral("name")) == name);
        appendCopy(m_document, Section::Profiles, theirs);
        remember({name, occurrence, {}, now});
    }

    void change(const Key& key, const QDomElement& mine, const Lists& now)
    {
        const Lists before = listsOf(mine);
        if (isSame(before, now))
            return;
        remember({key.first, key.second, before, now});
        writeLists(mine, now.counters, now.view);
    }

    void remember(const JoinedProfile& profile)
    {
        m_joined.profiles.append(profile);
        m_joined.isChanged = true;
    }

    QDomDocument& m_document;
    const QDomDocument& m_theirs;
    const QDomDocument& m_base;
    Joined m_joined;
};

SoPerfCounterProfile* find(const QList<SoPerfCounterProfile*>& profiles, const JoinedProfile& wanted)
{
    int occurrence = 0;
    for (SoPerfCounterProfile* profile : profiles) {
        if (profile->getName() == wanted.name && occurrence++ == wanted.occurrence)
            return profile;
    }
    return nullptr;
}

bool take(QList<QString>& list, const QStringList& before, const QStringList& now)
{
    if (list != before || before == now)
        return false;
    list = now;
    return true;
}

} // namespace

Joined join(QDomDocument& mine, const QDomDocument& base, const QDomDocument& theirs)
{
    return Merge(mine, base, theirs).run();
}

bool apply(const QList<JoinedProfile>& joined, QList<SoPerfCounterProfile*>& profiles)
{
    bool isChanged = false;
    for (const JoinedProfile& each : joined) {
        SoPerfCounterProfile* profile = find(profiles, each);
        if (!profile) {
            profile = new SoPerfCounterProfile(each.name);
            profiles.append(profile);
            isChanged = true;
        }
        isChanged |= take(*profile->getList(), each.before.counters, each.now.counters);
        isChanged |= take(*profile->getView(), each.before.view, each.now.view);
    }
    return isChanged;
}

} // namespace counterMerge
