// SPDX-License-Identifier: MIT
#include "handles/HandleSubject.h"

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoClipPlane.h>
#include <xsg/nodes/properties/SoTextureTransform.h>
#include <xsg/nodes/transforms/SoMatrixTransform.h>
#include <xsg/nodes/transforms/SoTransform.h>

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

AddedTransform::AddedTransform(const HandleSubject& subject, const SbVec3f& center)
    : m_toGroup(subject.wraps ? startOf(subject.part, subject.part.getLength() - 1) : subject.part)
    , m_partPath(subject.part)
    , m_group(subject.group)
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

SoPath AddedTransform::getTransformPath() const
{
    SoPath path = m_toGroup;
    if (m_wrapper)
        path.append(m_wrapper.get());
    path.append(m_transform.get());
    return path;
}

SoPath AddedTransform::getPartPath() const
{
    if (!m_wrapper)
        return m_partPath;
    SoPath path = m_toGroup;
    path.append(m_wrapper.get());
    path.append(m_part.get());
    return path;
}

} // namespace scopix
