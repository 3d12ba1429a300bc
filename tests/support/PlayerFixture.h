// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEPlayer.h"
#include "tests/support/EngineFixture.h"

#include <QDataStream>

#include <cstring>
#include <functional>
#include <mutex>

/// What a player has told.
class PlayerSpy final : public ComObject<INLEPlayerListener>
{
public:
    struct Shown
    {
        int frame;
        int source;
        int number; ///< that the picture shows; -1: none can be read
        QRgb corner;
        QSize size;
        int position; ///< of the player then
        qint64 heard; ///< what onPicture gave
    };

    HRESULT PictureDue(int frame, int source, INLEVideoFrame* picture) override
    {
        Shown shown = {frame, source, -1, 0, {}, -1, 0};
        if (onPicture)
            shown.heard = onPicture();
        if (player)
            player->GetPosition(&shown.position);
        std::uint8_t* pixels = nullptr;
        NLESize size;
        if (picture && picture->GetData(&pixels) == S_OK && picture->GetSize(&size) == S_OK) {
            const QImage image(pixels, size.width, size.height, QImage::Format_ARGB32);
            shown.size = image.size();
            shown.number = ReadFrameNumber(image);
            shown.corner = image.pixel(0, 0);
        }
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_shown.push_back(shown);
        return S_OK;
    }
    HRESULT StateChanged(int state) override
    {
        if (onState)
            onState(state);
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_states.push_back(state);
        return S_OK;
    }
    HRESULT DeviceChanged() override { return S_OK; }
    HRESULT SecondPlayed(const NLEPlayerReport* report) override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_seconds.push_back(*report);
        return S_OK;
    }

    std::vector<Shown> Pictures() const { return Copy(m_shown); }
    std::vector<int> States() const { return Copy(m_states); }
    std::vector<NLEPlayerReport> Seconds() const { return Copy(m_seconds); }
    Shown Last() const
    {
        const std::vector<Shown> all = Pictures();
        return all.empty() ? Shown{-1, -1, -1, 0, {}, -1, 0} : all.back();
    }
    void Forget()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_shown.clear();
        m_states.clear();
    }

    INLEPlayer* player = nullptr;
    std::function<qint64()> onPicture;
    std::function<void(int)> onState;

private:
    template <typename T>
    std::vector<T> Copy(const std::vector<T>& from) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return from;
    }

    mutable std::mutex m_mutex; ///< guards the rest
    std::vector<Shown> m_shown;
    std::vector<int> m_states;
    std::vector<NLEPlayerReport> m_seconds;
};

/// A player of the open engine, and material of which each picture and each sample tells where it
/// stands.
class PlayerFixture : public EngineFixture
{
public:
    static constexpr int kFrames = 100;
    static constexpr int kPerFrame = kSampleRate / 25;

    struct Screening
    {
        NLEComPtr<INLEPlayer> player;
        NLEComPtr<PlayerSpy> spy;

        int State() const
        {
            int state = -1;
            player->GetState(&state);
            return state;
        }
        int Position() const
        {
            int frame = -1;
            player->GetPosition(&frame);
            return frame;
        }
        /// Ends it; what is left of the player's threads goes with it.
        ~Screening()
        {
            if (player) {
                player->SetListener(nullptr);
                player->Close();
            }
        }
    };

    static NLEComPtr<INLEPlayer> NewPlayer()
    {
        const auto factory = Factory();
        NLEComPtr<INLEPlayer> player;
        factory->CreatePlayer(player.put());
        return player;
    }
    static Screening Screen(const Node& node = {})
    {
        Screening screening{NewPlayer(), MakeCom<PlayerSpy>()};
        screening.spy->player = screening.player.get();
        screening.player->SetListener(screening.spy.get());
        if (node)
            screening.player->Open(node.get());
        return screening;
    }

    /// Pictures with their numbers, at 25 a second.
    Node Film() const
    {
        const QString path = Path("numbers.mp4");
        if (!QFile::exists(path)) {
            TestClip clip;
            clip.size = QSize(160, 90);
            clip.frames = kFrames;
            clip.gop = 12;
            MakeTestClip(path, clip);
        }
        return Media(path);
    }
    /// Samples that are their own number, see Number().
    Node CountedSound() const
    {
        const QString path = Path("counted.wav");
        if (!QFile::exists(path)) {
            QByteArray samples;
            QDataStream stream(&samples, QIODevice::WriteOnly);
            stream.setByteOrder(QDataStream::LittleEndian);
            for (int i = 0; i < kFrames * kPerFrame; ++i)
                stream << qint16(i % kDigit) << qint16(i / kDigit + 1);
            RunFfmpeg({"-f", "s16le", "-ar", "48000", "-ac", "2", "-i", "-", path}, samples);
        }
        return Media(path);
    }
    Node FilmWithSound() const
    {
        Node project = ProjectWith(Film());
        Add(project, CountedSound(), 0, 1);
        return project;
    }

    /// The numbers of counted samples that were written to a file by SDL's driver "disk"; -1 for
    /// silence.
    static std::vector<int> Numbers(const QString& path)
    {
        std::vector<int> numbers;
        const std::vector<float> samples = Samples(path);
        for (size_t i = 0; i + 1 < samples.size(); i += 2) {
            const auto high = int(std::lround(samples[i + 1] * kScale));
            const auto low = int(std::lround(samples[i] * kScale));
            numbers.push_back(high == 0 ? -1 : (high - 1) * kDigit + low);
        }
        return numbers;
    }
    static std::vector<float> Samples(const QString& path)
    {
        const QByteArray bytes = Contents(path);
        std::vector<float> samples(size_t(bytes.size()) / sizeof(float));
        if (!samples.empty())
            std::memcpy(samples.data(), bytes.constData(), samples.size() * sizeof(float));
        return samples;
    }
    /// Lets SDL write sound into \a path in real time.
    static void PlayInto(const QString& path)
    {
        qputenv("SDL_AUDIODRIVER", "disk");
        qputenv("SDL_DISKAUDIOFILE", path.toLocal8Bit());
    }

private:
    static constexpr int kDigit = 1000;
    static constexpr float kScale = 32768;
};
