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

} // namespace

SbSentence xsg::nameOfRoot(const SoNode& root)
{
    const SbName name = root.getName();
    return name.getLength() > 0 ? SbSentence("“%1”", name.getString()) : SbSentence("The scene");
}

void xsg::reportBound(const SoNode& root, const SbSentence& sentence)
{
    static ReportedRoots& reported = Context::get().state<ReportedRoots>();
    if (reported.sentences.emplace(root.getNodeId(), sentence.getText()).second)
        SoError::post(sentence);
}

void xsg::reportRepeats(const SoNode& root)
{
    reportBound(root,
                SbSentence("%1 has groups that stand in so many places that only a part of it is shown, "
                           "measured and searched: the first %2 repeated nodes.",
                           nameOfRoot(root), SoTraversal::MostRepeats));
}

void xsg::reportInstances(const SoNode& root)
{
    reportBound(root, SbSentence("%1 has instances within instances that come to more than %2 copies; the "
                                 "others are left out.",
                                 nameOfRoot(root), SoInstances::MostCopies));
}
