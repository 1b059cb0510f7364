// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbTime.h>
#include <xsg/values/XsgExport.h>

#include <unordered_set>

class SoNode;
namespace xsg
{
class Context;
} // namespace xsg

/// Where nodes that change as time passes get their time from. Nothing moves by itself: a view calls
/// advance() for the scene that it shows, as often as it draws, for as long as isNeeded(). Belongs to the
/// graph's thread.
class XSG_API SoTimeSource
{
public:
    static SoTimeSource& getInstance();
    SoTimeSource(const SoTimeSource&) = delete;
    SoTimeSource& operator=(const SoTimeSource&) = delete;

    /// What a node derives from to take part, subscribed as long as it lives.
    class XSG_API Subscriber
    {
    public:
        Subscriber(const Subscriber&) = delete;
        Subscriber& operator=(const Subscriber&) = delete;

    protected:
        /// `node`: the node itself, whose place in a scene decides whether time passes for it.
        explicit Subscriber(const SoNode& node);
        virtual ~Subscriber();

    private:
        friend class SoTimeSource;
        /// Whether time changes it at present.
        virtual bool isMoving() const = 0;
        virtual void advance(SbTime elapsed) = 0;
        bool isMovingBelow(const SoNode* root) const;

        const SoNode& m_node;
    };

    /// Whether time would change a node below `root`, or in any scene where that is null. A node that has no
    /// parents is in no scene.
    bool isNeeded(const SoNode* root = nullptr) const;
    /// Lets time pass for these nodes; true when there was one, so that the scene needs to be drawn.
    bool advance(SbTime elapsed, const SoNode* root = nullptr);

private:
    friend class xsg::Context;
    SoTimeSource() = default;

    std::unordered_set<Subscriber*> m_subscribers;
};
