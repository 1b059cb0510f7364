// SPDX-License-Identifier: MIT
#include <xsg/actions/RepeatBound.h>

#include <xsg/actions/SoTraversal.h>
#include <xsg/core/Context.h>
#include <xsg/errors/SoError.h>

#include <unordered_set>

namespace
{

struct ReportedRoots {
    std::unordered_set<std::uint64_t> ids;
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
    if (reported.ids.insert(root.getNodeId()).second)
        SoError::post((nameOf(root) + ' ' + rest).c_str());
}

void xsg::reportRepeats(const SoNode& root)
{
    reportBound(root, "has groups that stand in so many places that only a part of it is shown, measured and "
                      "searched: the first " +
                          std::to_string(SoTraversal::MostRepeats) + " repeated nodes.");
}
