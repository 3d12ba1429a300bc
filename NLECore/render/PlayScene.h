// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEPlayer.h"
#include "NLECore/media/SoundQueue.h"
#include "NLECore/render/AudioMixer.h"
#include "NLECore/render/CachedFrames.h"
#include "NLECore/render/Composer.h"
#include "NLECore/render/PlayPlan.h"

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace nle {

/// One snapshot that is played, after one edit.
struct PlayScene
{
    Snapshot root;
    std::unique_ptr<CachedFrames> cached; ///< or null; for the thread that composes
    int length = 0;                       ///< frames of the node, above 0
};
using SharedScene = std::shared_ptr<const PlayScene>;

/// A picture that was composed for a player.
struct PlayPicture
{
    int frame = -1;
    int source = NLEPlayerSource_Rendered; ///< NLEPlayerSource
    QImage image;                          ///< in kPictureFormat; null where there is none
    SharedScene scene;                     ///< that it is of
    QSize size;                            ///< that it was fitted into
};

/// Composes the pictures of the scene that plays. One object serves one thread.
class PlayComposer
{
public:
    /// \a stop ends the picture that is being drawn, see Composer::SetStop().
    explicit PlayComposer(const std::atomic<bool>& stop) : m_stop(stop) {}

    /// Draws frames of \a scene from now on; null gives up what is open.
    void SetScene(const SharedScene& scene);
    /// The picture of \a frame fitted into \a size; its image is null when it was stopped, too.
    PlayPicture Compose(int frame, const QSize& size);
    /// One that is quick to draw: the exact one, or with NLEPlayerSource_Near one that lies near.
    PlayPicture ComposeNear(int frame, const QSize& size);

private:
    template <typename Draw>
    PlayPicture Make(int frame, const QSize& size, Draw&& draw);

    const std::atomic<bool>& m_stop;
    SharedScene m_scene;
    PictureTrail m_trail;
    std::optional<Composer> m_composer;
};

/// Sound of a scene as a plan plays it. One object serves one thread.
class PlaySound
{
public:
    /// Samples of the piece that is heard of a frame while scrubbing.
    static constexpr int kGrain = SoundQueue::kRate / 25;

    /// Plays \a scene from now on; null gives up what is open.
    void SetScene(const SharedScene& scene);
    /// Begins anew with played sample 0 of \a plan.
    void SetPlan(const PlayPlan& plan);
    /// The next \a count samples a channel, silence after the end.
    void Read(int count, float* samples);
    /// The sound of the first kGrain samples from \a material on, faded in and out.
    void ReadGrain(std::int64_t material, float* samples);

private:
    /// Sound at normal speed, \a first samples of material after the start.
    void ReadMaterial(std::int64_t first, int count, float* samples);

    std::optional<AudioMixer> m_mixer;
    PlayPlan m_plan;
    std::int64_t m_next = 0; ///< played sample that is read next
    std::optional<AudioFilter> m_tempo;
};

} // namespace nle
