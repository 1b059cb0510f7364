// SPDX-License-Identifier: MIT
#include <xsg/actions/RepeatBound.h>

#include <xsg/actions/SoTraversal.h>
#include <xsg/core/Context.h>
#include <xsg/errors/SoError.h>
#include <xsg/nodes/groups/SoInstances.h>

#include <set>
#include <utility>

namespace
{

struct ReportedRoots {
    std::set<std::pair<std::uint64_t, std::string>> sentences; // of a root's number
};

std::string nameOf(const SoNode& root)
{
    const SbName name = root.getName();
    return name.getLength() > 0 ? "\xE2\x80\x9C" + std::string(name.getString()) + "\xE2\x80\x9D"
                                : "The scene";
}

} // namespace

void xsg::reportBound(const SoNode& root, const std::string& rest)
{
    static ReportedRoots& reported = Context::get().state<ReportedRoots>();
    if (reported.sentences.emplace(root.getNodeId(), rest).second)
        SoError::post((nameOf(root) + ' ' + rest).c_str());
}

void xsg::reportRepeats(const SoNode& root)
{
    reportBound(root, "has groups that stand in so many places that only a part of it is shown, measured and "
                      "searched: the first " +
                          std::to_string(SoTraversal::MostRepeats) + " repeated nodes.");
}

void xsg::reportInstances(const SoNode& root)
{
    reportBound(root, "has instances within instances that come to more than " +
                          std::to_string(SoInstances::MostCopies) + " copies; the others are left out.");
}
