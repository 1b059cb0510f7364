// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/SoAnimation.h>

#include <xsg/core/Context.h>
#include <xsg/nodes/animation/SoAnimatedValues.h>
#include <xsg/nodes/animation/SoTrack.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <unordered_set>

template class SoTyped<SoAnimation, SoGroup>;

namespace
{

template <class Visit>
void forEachTrack(const SoGroup& group, Visit visit)
{
    for (SoNode* child : group.getChildren()) {
        if (auto* track = dynamic_cast<SoTrack*>(child))
            visit(*track);
    }
}

// By their numbers, which grow.
using Living = std::map<std::uint64_t, SoAnimation*>;

Living& living()
{
    static auto& all = xsg::Context::get().state<Living>();
    return all;
}

bool standsBelow(const SoNode& node, const SoNode& root)
{
    std::vector<const SoNode*> open{&node};
    std::unordered_set<const SoNode*> seen;
    while (!open.empty() && open.back() != &root) {
        const SoNode* at = open.back();
        open.pop_back();
        if (seen.insert(at).second)
            open.insert(open.end(), at->getParents().begin(), at->getParents().end());
    }
    return !open.empty();
}

double wrapped(double seconds, double duration)
{
    const double rest = std::fmod(seconds, duration);
    return rest < 0 ? rest + duration : rest;
}

} // namespace

SoEnumTablePtr SoAnimation::getStateNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"STOPPED", Stopped}, {"PAUSED", Paused}, {"PLAYING", Playing}});
    return names;
}

SoAnimation::SoAnimation()
    : SoTimeSource::Subscriber(static_cast<const SoNode&>(*this))
{
    m_sensor.attach(this);
    living().insert({getNodeId(), this});
}

SoAnimation::~SoAnimation()
{
    living().erase(getNodeId());
    m_sensor.detach();
    giveBackAll();
    for (const SoField* field : std::initializer_list<const SoField*>{&state, &time, &speed, &loop})
        SoAnimatedValues::getInstance().forget(*field);
}

void SoAnimation::play()
{
    const double end = speed.getValue() < 0 ? 0 : getDuration();
    const double now = time.getValue().getValue();
    const bool isAtEnd = !loop.getValue() && now == end;
    bind(); // takes what was released meanwhile too
    show(Playing, isAtEnd ? getDuration() - end : now);
}

void SoAnimation::pause()
{
    show(Paused, time.getValue().getValue());
}

void SoAnimation::stop()
{
    show(Stopped, 0);
}

void SoAnimation::goTo(double seconds)
{
    const bool isPlaying = state.getValue() == Playing;
    bind();
    show(isPlaying ? Playing : Paused, std::clamp(seconds, 0.0, getDuration()));
}

void SoAnimation::step(bool forward)
{
    const std::vector<float>& keys = getKeyTimes();
    const auto now = static_cast<float>(time.getValue().getValue());
    const auto after = std::upper_bound(keys.begin(), keys.end(), now);
    const auto before = std::lower_bound(keys.begin(), keys.end(), now);
    if (forward ? after == keys.end() : before == keys.begin())
        return pause();
    bind();
    show(Paused, forward ? *after : *(before - 1));
}

void SoAnimation::setSpeed(float factor)
{
    hold(speed, factor);
}

void SoAnimation::setLooping(bool on)
{
    hold(loop, on);
}

double SoAnimation::getDuration() const
{
    const double given = duration.getValue().getValue();
    if (given > 0)
        return given;
    const std::vector<float>& keys = getKeyTimes();
    return keys.empty() ? 0 : std::max(0.0F, keys.back());
}

void SoAnimation::advance(SbTime elapsed)
{
    const double end = getDuration();
    const double next =
        time.getValue().getValue() + elapsed.getValue() * static_cast<double>(speed.getValue());
    const bool isOver = !loop.getValue() && (next >= end || next < 0);
    if (end <= 0 || isOver)
        return show(Paused, std::clamp(next, 0.0, end));
    show(Playing, wrapped(next, end));
}

void SoAnimation::show(State newState, double seconds)
{
    hold(state, static_cast<int>(newState));
    hold(time, SbTime(std::isfinite(seconds) ? seconds : 0));
    pose();
}

// Marked as animated only while it is another value than at rest.
template <class Field, class Value>
void SoAnimation::hold(Field& field, const Value& value)
{
    SoAnimatedValues& values = SoAnimatedValues::getInstance();
    if (field.getValue() == value || !values.take(field, this))
        return;
    values.write(field, this, [&] { field.setValue(value); });
    if (values.getRest(field).isSame(field))
        values.giveBack(field);
}

void SoAnimation::pose()
{
    if (state.getValue() == Stopped)
        giveBackAll();
    else if (m_channels.empty() || m_boundCount != countTrackChanges())
        bind();
    const auto now = static_cast<float>(time.getValue().getValue());
    for (const Channel& channel : m_channels)
        SoAnimatedValues::getInstance().write(*channel.field, this,
                                              [&] { channel.track->write(*channel.field, now); });
    m_shownCount = getChangeCount();
}

void SoAnimation::bind()
{
    std::vector<Channel> former;
    former.swap(m_channels);
    forEachTrack(*this, [&](SoTrack& track) {
        SoField* field = track.findTarget();
        if (field && track.canWrite(*field) && SoAnimatedValues::getInstance().take(*field, this))
            m_channels.push_back({&track, track.target.getNode(), field});
    });
    m_boundCount = countTrackChanges();
    for (const Channel& gone : former) {
        const bool isKept = std::any_of(m_channels.begin(), m_channels.end(),
                                        [&](const Channel& each) { return each.field == gone.field; });
        if (!isKept)
            SoAnimatedValues::getInstance().giveBack(*gone.field, this);
    }
}

void SoAnimation::giveBackAll()
{
    std::vector<Channel> former;
    former.swap(m_channels);
    for (const Channel& channel : former)
        SoAnimatedValues::getInstance().giveBack(*channel.field, this);
}

std::vector<SoAnimation*> SoAnimation::findBelow(const SoNode& root)
{
    std::vector<SoAnimation*> below;
    for (const auto& [number, animation] : living()) {
        if (standsBelow(*animation, root))
            below.push_back(animation);
    }
    return below;
}

std::uint64_t SoAnimation::countTrackChanges() const
{
    std::uint64_t sum = 1;
    forEachTrack(*this, [&](const SoTrack& track) {
        sum = sum * 31 + track.getNodeId() * 1000003 + track.getChangeCount();
    });
    return sum;
}

const std::vector<float>& SoAnimation::getKeyTimes() const
{
    const std::uint64_t count = countTrackChanges();
    if (m_keys.count == count)
        return m_keys.times;
    m_keys.count = count;
    m_keys.times.clear();
    forEachTrack(*this, [&](const SoTrack& track) {
        const float* first = track.times.getValues();
        m_keys.times.insert(m_keys.times.end(), first, first + track.times.getNum());
    });
    std::sort(m_keys.times.begin(), m_keys.times.end());
    m_keys.times.erase(std::unique(m_keys.times.begin(), m_keys.times.end()), m_keys.times.end());
    return m_keys.times;
}

void SoAnimation::fieldsChanged(void* self, SoSensor* /*sensor*/)
{
    auto* animation = static_cast<SoAnimation*>(self);
    if (animation->getChangeCount() != animation->m_shownCount)
        animation->pose();
}
