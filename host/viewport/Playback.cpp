// SPDX-License-Identifier: MIT
#include "viewport/Playback.h"

#include "text/NodeText.h"

#include <algorithm>

namespace scopix
{

Playback::Playback(QObject* parent)
    : QObject(parent)
{
}

void Playback::setScene(SoNode* root)
{
    m_sensor.detach();
    m_root = SoRef<SoNode>(root);
    if (root)
        m_sensor.attach(root);
    m_choice = 0;
    findClips();
}

void Playback::sceneChanged(void* self, SoSensor* /*sensor*/)
{
    auto* playback = static_cast<Playback*>(self);
    if (playback->m_structure != SoGroup::getStructureCount())
        playback->findClips();
    else if (playback->hasClips())
        emit playback->changed();
}

// A clip that was taken out of the scene shows nothing any more.
void Playback::findClips()
{
    m_structure = SoGroup::getStructureCount();
    std::vector<SoRef<SoAnimation>> former;
    former.swap(m_clips);
    if (m_root) {
        for (SoAnimation* clip : SoAnimation::findBelow(*m_root))
            m_clips.emplace_back(clip);
    }
    for (const SoRef<SoAnimation>& clip : former) {
        if (std::find(m_clips.begin(), m_clips.end(), clip) == m_clips.end())
            clip->stop();
    }
    if (former != m_clips) {
        m_choice = std::clamp(m_choice, 0, std::max(0, int(getChoices().size()) - 1));
        emit clipsChanged();
    }
    emit changed();
}

QStringList Playback::getChoices() const
{
    QStringList names;
    for (const SoRef<SoAnimation>& clip : m_clips)
        names += clip->getName().getLength() > 0 ? toQString(clip->getName())
                                                 : tr("Clip %1").arg(names.size() + 1);
    if (names.size() > 1)
        names += tr("All clips");
    return names;
}

std::vector<SoAnimation*> Playback::chosen() const
{
    std::vector<SoAnimation*> result;
    for (std::size_t i = 0; i < m_clips.size(); ++i) {
        if (int(i) == m_choice || m_choice == int(m_clips.size()))
            result.push_back(m_clips[i].get());
    }
    return result;
}

SoAnimation* Playback::leading() const
{
    const std::vector<SoAnimation*> clips = chosen();
    const auto longest = std::max_element(clips.begin(), clips.end(), [](const auto* a, const auto* b) {
        return a->getDuration() < b->getDuration();
    });
    return longest == clips.end() ? nullptr : *longest;
}

template <class Act>
void Playback::act(Act act)
{
    for (SoAnimation* clip : chosen())
        act(*clip);
    emit changed();
}

void Playback::choose(int choice)
{
    if (choice == m_choice || choice < 0 || choice >= getChoices().size())
        return;
    const bool wasPlaying = isPlaying();
    const bool wasShown = isShown();
    const float speed = getSpeed();
    const bool loops = isLooping();
    for (SoAnimation* clip : chosen())
        clip->stop();
    m_choice = choice;
    act([&](SoAnimation& clip) {
        clip.setSpeed(speed);
        clip.setLooping(loops);
        if (wasShown)
            clip.goTo(0);
        if (wasPlaying)
            clip.play();
    });
}

void Playback::chooseNext()
{
    if (const int count = getChoices().size(); count > 0)
        choose((m_choice + 1) % count);
}

bool Playback::isPlaying() const
{
    const std::vector<SoAnimation*> clips = chosen();
    return std::any_of(clips.begin(), clips.end(), [](const SoAnimation* clip) {
        return clip->state.getValue() == SoAnimation::Playing;
    });
}

bool Playback::isShown() const
{
    const std::vector<SoAnimation*> clips = chosen();
    return std::any_of(clips.begin(), clips.end(), [](const SoAnimation* clip) {
        return clip->state.getValue() != SoAnimation::Stopped;
    });
}

double Playback::getTime() const
{
    const SoAnimation* clip = leading();
    return clip ? clip->time.getValue().getValue() : 0;
}

double Playback::getDuration() const
{
    const SoAnimation* clip = leading();
    return clip ? clip->getDuration() : 0;
}

float Playback::getSpeed() const
{
    const SoAnimation* clip = leading();
    return clip ? clip->speed.getValue() : 1;
}

bool Playback::isLooping() const
{
    const SoAnimation* clip = leading();
    return !clip || clip->loop.getValue();
}

void Playback::togglePlaying()
{
    const bool wasPlaying = isPlaying();
    act([wasPlaying](SoAnimation& clip) { wasPlaying ? clip.pause() : clip.play(); });
}

void Playback::stop()
{
    act([](SoAnimation& clip) { clip.stop(); });
}

// Clips that play together show the same time.
void Playback::step(bool forward)
{
    SoAnimation* first = leading();
    if (!first)
        return;
    first->step(forward);
    const double seconds = getTime();
    act([&](SoAnimation& clip) {
        if (&clip == first)
            return;
        clip.pause();
        clip.goTo(seconds);
    });
}

void Playback::goTo(double seconds)
{
    act([seconds](SoAnimation& clip) { clip.goTo(seconds); });
}

void Playback::setSpeed(float factor)
{
    act([factor](SoAnimation& clip) { clip.setSpeed(factor); });
}

void Playback::setLooping(bool on)
{
    act([on](SoAnimation& clip) { clip.setLooping(on); });
}

} // namespace scopix
