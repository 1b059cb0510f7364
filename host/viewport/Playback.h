// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/animation/SoAnimation.h>

#include <QObject>
#include <QStringList>

#include <vector>

namespace scopix
{

/// Plays the clips of a scene, one or all together. None of its acts is an edit. GUI thread only.
class Playback : public QObject
{
    Q_OBJECT

public:
    explicit Playback(QObject* parent = nullptr);

    /// Null: there is nothing to play.
    void setScene(SoNode* root);
    bool hasClips() const { return !m_clips.empty(); }
    /// The names of the choices: each clip, then all together where there are several.
    QStringList getChoices() const;
    int getChoice() const { return m_choice; }
    /// Stops what was chosen before; the other goes on in its place where that one played or was paused.
    void choose(int choice);
    void chooseNext();

    bool isPlaying() const;
    /// False where all fields have their own values.
    bool isShown() const;
    double getTime() const;
    double getDuration() const;
    float getSpeed() const;
    bool isLooping() const;

public slots:
    void togglePlaying();
    void stop();
    void stepAhead() { step(true); }
    void stepBack() { step(false); }
    void goTo(double seconds);
    void setSpeed(float factor);
    void setLooping(bool on);

signals:
    /// Other clips can be chosen.
    void clipsChanged();
    /// Time, state, speed or choice.
    void changed();

private:
    static void sceneChanged(void* self, SoSensor* sensor);
    void findClips();
    void step(bool forward);
    std::vector<SoAnimation*> chosen() const;
    /// The chosen clip that lasts longest, or null.
    SoAnimation* leading() const;
    template <class Act>
    void act(Act act);

    SoRef<SoNode> m_root;
    SoNodeSensor m_sensor{sceneChanged, this};
    std::vector<SoRef<SoAnimation>> m_clips;
    std::uint64_t m_structure = 0; // for which the clips hold
    int m_choice = 0;
};

} // namespace scopix
