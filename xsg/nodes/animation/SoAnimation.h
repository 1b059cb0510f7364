// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <vector>

class SoTrack;

/// A clip: tracks as its children, which give fields of other nodes the values of one time. While it is
/// stopped these have their own. What it writes is no edit, and is not saved: see SoAnimatedValues. It writes
/// at once when its functions are called or time passes at the time source, and from the sensor queue after
/// one of its fields or tracks has changed.
class XSG_API SoAnimation : public SoTyped<SoAnimation, SoGroup>, private SoTimeSource::Subscriber
{
public:
    static constexpr const char* ClassName = "Animation";
    enum State { Stopped = 0, Paused = 1, Playing = 2 };

    SoSFEnum state{this, "state", getStateNames(), Stopped};
    SoSFTime time{this, "time"};         // of what is shown, in seconds
    SoSFFloat speed{this, "speed", 1};   // seconds of the clip a second; below 0: backwards
    SoSFBool loop{this, "loop", true};   // from the end it goes on at the beginning; else it pauses there
    SoSFTime duration{this, "duration"}; // 0: until the last key

    SoAnimation();

    /// From where it is, or from its beginning where it had come to its end. The acts here are no edits.
    void play();
    void pause();
    /// Gives all fields their values at rest back.
    void stop();
    /// Shows this time, between 0 and the duration, paused where it was stopped.
    void goTo(double seconds);
    void setSpeed(float factor);
    void setLooping(bool on);
    /// In seconds; 0 for a clip without keys.
    double getDuration() const;
    /// To the next time at which a track has a key, or the one before; pauses.
    void step(bool forward);

    /// All that stand below this node, in the order in which they were made.
    static std::vector<SoAnimation*> findBelow(const SoNode& root);

    SoChildRange getChosenChildren(const SoState& /*state*/) const override { return {0, 0}; }
    static SoEnumTablePtr getStateNames();

protected:
    ~SoAnimation() override;

private:
    struct Channel {
        SoRef<SoTrack> track;
        SoRef<SoNode> node;
        SoField* field;
    };
    /// What is known about the tracks, as long as they do not change.
    struct Keys {
        std::uint64_t count = 0; // of changes
        std::vector<float> times;
    };

    bool isMoving() const override { return state.getValue() == Playing; }
    void advance(SbTime elapsed) override;
    void show(State newState, double seconds);
    template <class Field, class Value>
    void hold(Field& field, const Value& value);
    void pose();
    void bind();
    void giveBackAll();
    std::uint64_t countTrackChanges() const;
    const std::vector<float>& getKeyTimes() const;
    static void fieldsChanged(void* self, SoSensor* sensor);

    std::vector<Channel> m_channels; // while it is not stopped
    std::uint64_t m_boundCount = 0;  // of the tracks' changes, for which the channels hold
    std::uint32_t m_shownCount = 0;  // of its own changes, which are shown
    mutable Keys m_keys;
    SoNodeSensor m_sensor{fieldsChanged, this};
};

extern template class SoTyped<SoAnimation, SoGroup>;
