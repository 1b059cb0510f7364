// SPDX-License-Identifier: MIT
#include "handles/HandleSubject.h"

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <algorithm>
#include <set>
#include <unordered_map>

namespace scopix
{

namespace
{

bool canBeSeen(SoNode* node)
{
    return node->asShape() || node->asGroup();
}

bool isScope(SoNode* node)
{
    return node->asGroup() && node->asGroup()->isStateScope();
}

// One that stands in several places would move them all.
bool canGovern(SoNode* node)
{
    return node->getParents().size() == 1 &&
           (dynamic_cast<SoTransform*>(node) || dynamic_cast<SoMatrixTransform*>(node));
}

// The place of the first child that can be seen; behind the last one where none can.
int firstSeen(const SoGroup& group)
{
    int place = 0;
    while (place < group.getNumChildren() && !canBeSeen(group.getChild(place)))
        ++place;
    return place;
}

// The same, or of one that moves things.
int firstPlaced(const SoGroup& group)
{
    int place = 0;
    while (place < firstSeen(group) && !dynamic_cast<SoTransformation*>(group.getChild(place)))
        ++place;
    return place;
}

// The last one before this place, with nothing between them that can be seen; -1 for none.
int transformBefore(const SoGroup& group, int place)
{
    for (int i = place - 1; i >= 0 && !canBeSeen(group.getChild(i)); --i) {
        if (canGovern(group.getChild(i)))
            return i;
    }
    return -1;
}

bool isAloneIn(const SoGroup& group, int place)
{
    for (int i = 0; i < group.getNumChildren(); ++i) {
        if (i != place && canBeSeen(group.getChild(i)))
            return false;
    }
    return true;
}

SoPath startOf(const SoPath& path, int length)
{
    SoPath start;
    for (int i = 0; i < length; ++i)
        start.append(path.getNode(i));
    return start;
}

SoPath childOf(SoPath path, SoNode* child)
{
    path.append(child);
    return path;
}

// From the part on outwards, as long as each group holds nothing else.
SoPath findGoverning(const SoPath& part)
{
    for (int last = part.getLength() - 1; last >= 0; --last) {
        if (isScope(part.getNode(last))) {
            const SoGroup& scope = *part.getNode(last)->asGroup();
            const int inside = transformBefore(scope, firstSeen(scope));
            if (inside >= 0)
                return childOf(startOf(part, last + 1), scope.getChild(inside));
        }
        if (last == 0 || !isScope(part.getNode(last - 1)))
            break;
        const SoGroup& parent = *part.getNode(last - 1)->asGroup();
        if (!isAloneIn(parent, parent.findChild(part.getNode(last))))
            break;
    }
    return {};
}

// Properties stand for the group that they belong to.
SoPath findPart(const SoPath& selected)
{
    int last = selected.getLength() - 1;
    if (selected.getTail()->asShape())
        return selected;
    while (last > 0 && !isScope(selected.getNode(last)))
        --last;
    return startOf(selected, last + 1);
}

// What the subject edits, and so whether two are the same.
std::pair<const SoNode*, int> editOf(const HandleSubject& subject)
{
    if (!subject.node.isEmpty())
        return {subject.node.getTail(), -1};
    return {subject.group.get(), subject.wraps ? subject.index : -2};
}

// Tells what a set of subjects moves.
class MovedPlaces
{
public:
    void add(const HandleSubject& subject)
    {
        if (subject.wraps) {
            m_wrapped.insert({subject.group.get(), subject.part.getTail()});
        } else if (subject.node.isEmpty()) {
            addFrom(subject.group.get(), subject.index);
        } else if (dynamic_cast<SoTransformation*>(subject.node.getTail())) {
            addAfter(subject.node);
        }
    }
    bool move(const SoPath& path) const
    {
        for (int i = 0; i + 1 < path.getLength(); ++i) {
            const SoNode* const child = path.getNode(i + 1);
            const bool isBelow = i + 2 < path.getLength();
            if (isBelow && m_wrapped.count({path.getNode(i), child}) > 0)
                return true;
            const auto from = m_from.find(path.getNode(i));
            if (from != m_from.end() && path.getNode(i)->asGroup()->findChild(child) >= from->second)
                return true;
        }
        return false;
    }

private:
    void addFrom(const SoNode* group, int index)
    {
        const auto known = m_from.emplace(group, index).first;
        known->second = std::min(known->second, index);
    }
    // A group that keeps nothing to itself hands the movement on to what follows it.
    void addAfter(const SoPath& path)
    {
        for (int i = path.getLength() - 2; i >= 0; --i) {
            addFrom(path.getNode(i), path.getNode(i)->asGroup()->findChild(path.getNode(i + 1)) + 1);
            if (isScope(path.getNode(i)))
                return;
        }
    }

    std::set<std::pair<const SoNode*, const SoNode*>> m_wrapped; // group and child
    std::unordered_map<const SoNode*, int> m_from;               // in a group, the first child that is moved
};

} // namespace

bool hasHandles(SoNode* node)
{
    return dynamic_cast<SoTransform*>(node) || dynamic_cast<SoMatrixTransform*>(node) ||
           dynamic_cast<SoLight*>(node) || dynamic_cast<SoCamera*>(node) ||
           dynamic_cast<SoTextureTransform*>(node) || dynamic_cast<SoClipPlane*>(node);
}

HandleSubject findHandleSubject(const SoPath& selected)
{
    HandleSubject subject;
    if (selected.isEmpty())
        return subject;
    subject.part = selected;
    if (hasHandles(selected.getTail())) {
        subject.node = selected;
        return subject;
    }
    subject.part = findPart(selected);
    subject.node = findGoverning(subject.part);
    SoNode* const part = subject.part.getTail();
    if (!subject.node.isEmpty())
        return subject;
    if (isScope(part) && part->getParents().size() < 2) {
        subject.group = SoRef<SoGroup>(part->asGroup());
        subject.index = firstPlaced(*part->asGroup());
    } else if (SoNode* parent = subject.part.getNode(subject.part.getLength() - 2)) {
        subject.group = SoRef<SoGroup>(parent->asGroup());
        subject.index = parent->asGroup()->findChild(part);
        subject.wraps = true;
    }
    return subject;
}

std::vector<HandleSubject> findHandleSubjects(const std::vector<SoPath>& selected)
{
    std::vector<HandleSubject> subjects;
    std::set<std::pair<const SoNode*, int>> known;
    MovedPlaces moved;
    for (auto path = selected.rbegin(); path != selected.rend(); ++path) {
        HandleSubject subject = findHandleSubject(*path);
        if (subject.isEmpty() || !known.insert(editOf(subject)).second)
            continue;
        moved.add(subject);
        subjects.push_back(std::move(subject));
    }
    const auto isMoved = [&moved](const HandleSubject& subject) {
        return moved.move(subject.node.isEmpty() ? subject.part : subject.node);
    };
    subjects.erase(std::remove_if(subjects.begin(), subjects.end(), isMoved), subjects.end());
    std::reverse(subjects.begin(), subjects.end());
    return subjects;
}

AddedTransform::AddedTransform(const HandleSubject& subject, const SbVec3f& center)
    : m_group(subject.group)
    , m_transform(new SoTransform)
    , m_index(subject.index)
{
    if (center != SbVec3f())
        m_transform->center.setValue(center);
    if (!subject.wraps)
        return;
    m_part = SoRef<SoNode>(subject.part.getTail());
    m_wrapper = SoRef<SoSeparator>(new SoSeparator);
    m_wrapper->addChild(m_transform.get());
}

SoNode* AddedTransform::getAdded() const
{
    return m_wrapper ? static_cast<SoNode*>(m_wrapper.get()) : m_transform.get();
}

void AddedTransform::putIn()
{
    if (!m_part) {
        m_group->insertChild(m_transform.get(), m_index);
        return;
    }
    const int place = m_group->getChild(m_index) == m_part.get() ? m_index : m_group->findChild(m_part.get());
    if (place < 0)
        return;
    m_wrapper->addChild(m_part.get());
    if (!m_group->replaceChild(place, m_wrapper.get()))
        m_wrapper->removeChild(1);
}

void AddedTransform::takeOut()
{
    const int place = m_group->findChild(getAdded());
    if (place < 0)
        return;
    if (!m_part) {
        m_group->removeChild(place);
        return;
    }
    m_group->replaceChild(place, m_part.get());
    m_wrapper->removeChild(m_wrapper->findChild(m_part.get()));
}

bool AddedTransform::isIn() const
{
    return m_group->findChild(getAdded()) >= 0;
}

SoPath AddedTransform::pathWith(const SoPath& path) const
{
    SoPath result;
    for (int i = 0; i < path.getLength(); ++i) {
        if (m_part && path.getNode(i) == m_part.get() && path.getNode(i - 1) == m_group.get())
            result.append(m_wrapper.get());
        result.append(path.getNode(i));
    }
    return result;
}

SoPath AddedTransform::pathWithout(const SoPath& path) const
{
    SoPath result;
    for (int i = 0; i < path.getLength(); ++i) {
        SoNode* const node = path.getNode(i);
        if (node != m_transform.get() && node != m_wrapper.get())
            result.append(node);
    }
    const bool isOnlyIt = result.getLength() < path.getLength() && result.getTail() == m_group.get();
    if (isOnlyIt && m_part)
        result.append(m_part.get());
    return result;
}

} // namespace scopix
