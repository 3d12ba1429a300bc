// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLELevels.h"
#include "tests/support/Deviation.h"
#include "tests/support/Files.h"
#include "tests/support/TestMedia.h"

#include <QTemporaryDir>
#include <QtMath>
#include <QtTest>

#include <array>
#include <cmath>
#include <vector>

using Node = NLEComPtr<INLETimeline>;
/// Samples of two channels.
using Stereo = std::array<std::vector<double>, 2>;

/// The open engine as a test meets it: small pictures, short sounds, documents in a folder that
/// goes.
class EngineFixture
{
public:
    static constexpr int kSampleRate = 48000;
    /// Loudness of the tone of test clips, a sine of the level 0.5.
    static constexpr double kToneLoudness = 0.5 * M_SQRT1_2;
    static constexpr tagNLEProjectProfile kSmall = {{320, 180}, {25000000, 1000000}, 48000, 2, 3};

    EngineFixture() : provider(NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider())
    {
        SetWaveFolder(Path("waves"), 100);
    }
    ~EngineFixture()
    {
        NLEWraper::Release();
        CVCreateInstance::Instance()->Release();
    }

    QString Path(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
    static NLEComPtr<INLEFactory> Factory()
    {
        NLEComPtr<INLEFactory> factory;
        CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                       INLEFactory::Iid, factory.putVoid());
        return factory;
    }
    /// The engine's own maker of nodes.
    static NLEComPtr<INLETimelineFactory> Nodes()
    {
        NLEComPtr<INLETimelineFactory> nodes;
        if (const auto factory = Factory())
            factory->GetTimelineFactory(nodes.put());
        return nodes;
    }
    static NLEComPtr<INLELevels> LevelsOf(const Node& composite)
    {
        NLEComPtr<INLEEditing> editing;
        Factory()->CreateEditing(composite.get(), editing.put());
        return editing.query<INLELevels>();
    }
    /// The text that a call with a buffer gives; null when it fails.
    template <typename Call>
    static QString TextOf(Call call)
    {
        std::array<wchar_t, 256> buffer = {};
        return call(buffer.data(), int(buffer.size())) == S_OK
                   ? QString::fromWCharArray(buffer.data())
                   : QString();
    }
    /// A new effect; null for a name that there is not.
    static Node Effect(const char* name)
    {
        Node effect;
        Nodes()->CreateEffect(QString(name).toStdWString().c_str(), effect.put());
        return effect;
    }
    /// A new transition; null for a name that there is not.
    static Node Transition(const char* name)
    {
        Node transition;
        Nodes()->CreateTransition(QString(name).toStdWString().c_str(), transition.put());
        return transition;
    }
    /// A new effect that \a node carries as its last one.
    static Node AddEffect(const Node& node, const char* name)
    {
        Node effect = Effect(name);
        Facet<INLEEffects>(node)->AddEffect(effect.get(), -1);
        return effect;
    }

    Node Project() const { return provider->CreateProjectTimeline(kSmall); }
    Node Media(const QString& path) const { return provider->CreateMediaTimeline(path, false); }
    Node Colour(const QColor& color, const QSize& size = QSize(320, 180)) const
    {
        return provider->CreateColorTimeline(color, size, 25.0f);
    }

    Node ProjectWith(const Node& clip, int position = 0, int level = 0) const
    {
        Node project = Project();
        Add(project, clip, position, level);
        return project;
    }

    static HRESULT Add(const Node& composite, const Node& clip, int position = 0, int level = 0)
    {
        clip->SetPosition(position);
        clip->SetLevel(level);
        return composite.query<INLETimelineComposite>()->AddClip(clip.get());
    }
    static Node Trimmed(Node clip, int in, int out)
    {
        const NLERange range = {in, out};
        clip->SetRange(&range);
        return clip;
    }
    static NLERange RangeOf(const Node& node)
    {
        NLERange range = {-1, -1};
        node->GetRange(&range);
        return range;
    }
    static NLERange TotalOf(const Node& node)
    {
        NLERange range = {-1, -1};
        node->GetTotalRange(&range);
        return range;
    }
    static NLEComPtr<INLEProperties> BagOf(const Node& node)
    {
        NLEComPtr<INLEProperties> bag;
        node->GetProperties(bag.put());
        return bag;
    }
    static int ClipCount(const Node& composite)
    {
        int count = -1;
        composite.query<INLETimelineComposite>()->GetClipCount(&count);
        return count;
    }
    static Node ClipAt(const Node& composite, int index)
    {
        NLEComPtr<INLETimelineEnumerator> clips;
        composite.query<INLETimelineComposite>()->GetEnumerator(1, clips.put());
        for (int i = 0; i < index; ++i)
            clips->Next();
        Node clip;
        clips->GetCurrent(clip.put());
        return clip;
    }

    /// A facility of a clip: the clip itself in another part.
    template <typename Facility>
    static NLEComPtr<Facility> Facet(const Node& node)
    {
        NLEComPtr<Facility> facility;
        node->GetInterface(Facility::Iid, facility.putVoid(), 0, 0);
        return facility;
    }

    /// Where envelopes of sounds are kept; \a quota in MiB.
    HRESULT SetWaveFolder(const QString& path, int quota) const
    {
        const auto waves = provider->CreateWaveExtractor();
        return waves ? waves.query<INLEWaveCache>()->SetCacheFolder(path.toStdWString().c_str(),
                                                                    quota)
                     : E_FAIL;
    }

    /// Null when the engine renders none.
    QImage Frame(const Node& node, int frame, int flags = NLEOpen_Render,
                 const QSize& size = QSize(320, 180)) const
    {
        const auto picture = provider->CreateVideoFrame(size.width(), size.height());
        const auto extractor = provider->CreateFrameExtractor();
        std::uint8_t* pixels = nullptr;
        if (!picture || !extractor || picture->Prepare() != S_OK ||
            extractor->Open(node.get(), flags) != S_OK ||
            extractor->Extract(frame, picture.get()) != S_OK || picture->GetData(&pixels) != S_OK)
            return {};
        return QImage(pixels, size.width(), size.height(), QImage::Format_ARGB32).copy();
    }
    /// What sounds from a frame on; empty when the engine gives nothing.
    Stereo Sound(const Node& node, int frame, int samples = kSampleRate / 25) const
    {
        const auto sound = provider->CreateAudioFrame(samples);
        const auto extractor = provider->CreateFrameExtractor();
        float* data = nullptr;
        Stereo result;
        if (extractor->Open(node.get(), 1) != S_OK ||
            extractor->ExtractAudio(frame, sound.get()) != S_OK || sound->GetData(&data) != S_OK)
            return result;
        for (int i = 0; i < samples; ++i) {
            result[0].push_back(data[2 * i]);
            result[1].push_back(data[2 * i + 1]);
        }
        return result;
    }
    /// Root mean square.
    static double Loudness(const std::vector<double>& samples)
    {
        double sum = 0;
        for (const double sample : samples)
            sum += sample * sample;
        return samples.empty() ? -1 : std::sqrt(sum / double(samples.size()));
    }

    bool Save(const Node& node, const QString& path) const
    {
        const auto document = provider->CreateDocumentSerialize();
        return document->Save(node.get(), path.toStdWString().c_str()) == S_OK;
    }
    Node Load(const QString& path) const
    {
        Node node;
        provider->CreateDocumentSerialize()->Load(path.toStdWString().c_str(), node.put());
        return node;
    }

    QTemporaryDir folder;
    PlayerMaterProvider* const provider;
};
