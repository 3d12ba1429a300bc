// SPDX-License-Identifier: LGPL-2.1-or-later
// Documents of the open engine as the framework's own player shows and sounds them.
#include "CommonLib/NLEWraper/VideoKeyFrameSetting.h"
#include "EngineApi/INLEEffects.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLEMixerSetting.h"
#include "EngineApi/INLEStreamProcess.h"
#include "EngineApi/INLETitle.h"
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <QProcess>
#include <QStandardPaths>

#include <functional>

class tst_DocumentPlayer;
/// Puts clips into an empty project.
using Fill = std::function<void(const tst_DocumentPlayer&, const Node& project)>;
Q_DECLARE_METATYPE(Fill)

class tst_DocumentPlayer : public QObject, public EngineFixture
{
    Q_OBJECT

    static constexpr NLESizeF kHalf = {0.5, 0.5};

    /// What the player makes of a project's first \a frames frames, as a clip; null when it fails.
    Node Played(const Node& project, int frames) const
    {
        const QString document = Path("player.mlt");
        const QString result = Path("played.mkv");
        QFile::remove(result);
        if (!Save(project, document))
            return {};
        const QStringList arguments =
            QStringList{document, "in=0", QString("out=%1").arg(frames - 1), "-consumer",
                        "avformat:" + result} +
            QString("vcodec=png pix_fmt=rgb24 acodec=pcm_s16le ar=48000 channels=2 real_time=-1")
                .split(' ');
        // The player's consumer now and then hangs or ends at its start, whatever it plays.
        for (int attempt = 0; attempt < 5; ++attempt) {
            QProcess melt;
            // It asks for a display before it takes Qt's other platforms.
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert("DISPLAY", ":0");
            melt.setProcessEnvironment(environment);
            melt.start("melt", arguments);
            if (!melt.waitForFinished(20000)) {
                melt.kill();
                melt.waitForFinished();
            } else if (Node played = EngineFixture::Media(result)) {
                return played;
            }
        }
        return {};
    }

    /// Mean difference of the colours of two pictures, 0 to 255.
    static double Difference(const QImage& a, const QImage& b)
    {
        double sum = 0;
        for (int y = 0; y < a.height(); ++y) {
            for (int x = 0; x < a.width(); ++x) {
                const QRgb first = a.pixel(x, y);
                const QRgb second = b.pixel(x, y);
                sum += std::abs(qRed(first) - qRed(second)) +
                       std::abs(qGreen(first) - qGreen(second)) +
                       std::abs(qBlue(first) - qBlue(second));
            }
        }
        return sum / 3 / a.width() / a.height();
    }

    template <typename Facility, typename... Values, typename... Given>
    static void Set(const Node& clip, HRESULT (Facility::*setter)(Values...), Given... values)
    {
        (clip.query<Facility>().get()->*setter)(values...);
    }

    static Node Title(const wchar_t* text, const wchar_t* font)
    {
        const auto factory = Factory();
        NLEComPtr<INLETimelineFactory> timelines;
        Node title;
        factory->GetTimelineFactory(timelines.put());
        timelines->CreateTitle(text, title.put());
        title.query<INLETitle>()->SetFont(font);
        return title;
    }
    Node Clip(const char* name = "clip.mp4") const { return EngineFixture::Media(Path(name)); }
    /// Above all of a bright project.
    void OnColour(const Node& project, const Node& clip) const
    {
        Add(project, Colour(QColor(40, 90, 160)), 0, 0);
        Add(project, clip, 0, 1);
    }

private slots:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("melt").isEmpty())
            QSKIP("the framework's player, melt, is not installed");
        TestClip clip;
        clip.frames = 60;
        clip.audioCodec = "aac";
        QCOMPARE(MakeTestClip(Path("clip.mp4"), clip), QString());
        clip.size = QSize(160, 160);
        clip.audioCodec.clear();
        QCOMPARE(MakeTestClip(Path("square.mp4"), clip), QString());
        QVERIFY(QFile::copy(Path("square.mp4"), Path("50% of 100%25.mp4")));
        QVERIFY(PaintFrameNumber(77, QSize(80, 45)).save(Path("still.png")));
    }

    void pictures_data()
    {
        using T = tst_DocumentPlayer;
        QTest::addColumn<Fill>("fill");
        QTest::addColumn<double>("most");
        const auto row = [](const char* name, double most, const Fill& fill) {
            QTest::newRow(name) << fill << most;
        };
        row("a clip of the project's shape", 3,
            [](const T& t, const Node& p) { t.Add(p, t.Trimmed(t.Clip(), 7, 36)); });
        row("another shape, smaller, a percent sign in its name", 3,
            [](const T& t, const Node& p) { t.OnColour(p, t.Clip("50% of 100%25.mp4")); });
        row("a small still picture", 3,
            [](const T& t, const Node& p) { t.OnColour(p, t.Clip("still.png")); });
        const auto margin = [&row](const char* name, tagNLEMarginMode mode) {
            row(name, 4, [mode](const T& t, const Node& p) {
                const Node clip = t.Clip("square.mp4");
                clip->SetMarginMode(mode);
                t.OnColour(p, clip);
            });
        };
        margin("filling the frame", NLEMargin_Fill);
        margin("stretched", NLEMargin_Stretch);
        margin("pixel for pixel", NLEMargin_None);
        row("moved, smaller and turned", 4, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.OnColour(p, clip);
            const NLEPointF center = {0.3, 0.6};
            Set(clip, &INLETransform::SetCenter, &center);
            Set(clip, &INLETransform::SetScale, &kHalf);
            Set(clip, &INLETransform::SetRotation, 30.0);
        });
        row("moved by key frames, values that XML cannot hold", 4, [](const T& t, const Node& p) {
            const Node clip = t.Trimmed(t.Clip(), 5, 44);
            t.OnColour(p, clip);
            t.BagOf(clip)->SetString(L"odd \x01\xFFFE", L"\x02\xFFFF\xD800");
            VideoKeyFrameSetting(clip).AddKeyFrame({0, 0, 1, {-0.25, 0.25}, {0.5, 0.5}});
            VideoKeyFrameSetting(clip).AddKeyFrame({0.5, 0, 1, {0.25, -0.25}, {0.5, 0.5}});
        });
        row("half as opaque", 3, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.OnColour(p, clip);
            Set(clip, &INLEBlendSetting::SetAlpha, 128);
        });
        row("another mode of blending", 4, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.OnColour(p, clip);
            Set(clip, &INLEBlendSetting::SetMode, 2);
        });
        row("twice as fast", 3, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.BagOf(clip)->SetRational(NLEKey::Speed::kScale, {2, 1});
            t.BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, 1);
            t.Add(p, t.Trimmed(clip, 4, 29));
        });
        row("frozen", 3, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Frame, 33);
            t.BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1);
            t.Add(p, t.Trimmed(clip, 0, 99));
        });
        row("clips of one level, of which the one that was added last covers", 3,
            [](const T& t, const Node& p) {
                t.Add(p, t.Colour(Qt::red), 10, 3);
                t.Add(p, t.Trimmed(t.Clip(), 0, 40), 0, 3);
            });
        row("a text", 4.3, [](const T& t, const Node& p) {
            t.OnColour(p, t.provider->CreateTipTextTimeline("Hello World", "DejaVu Sans"));
        });
        const auto title = [&row](const char* name, double most,
                                  const std::vector<std::pair<const wchar_t*, double>>& numbers) {
            row(name, most, [numbers](const T& t, const Node& p) {
                const Node clip = t.Title(L"Hello World\nagain", L"DejaVu Sans");
                t.Trimmed(clip, 0, 39);
                for (const auto& [key, number] : numbers)
                    clip.query<INLEParameters>()->SetNumber(key, number);
                t.OnColour(p, clip);
            });
        };
        title("a title", 4.3, {});
        title("a title at the bottom left, shifted", 4.3,
              {{L"alignment", 0}, {L"place", 2}, {L"x", 0.1}, {L"y", -0.2}});
        title("a title at the top right in a box", 5.5,
              {{L"alignment", 2}, {L"place", 0}, {L"box-color", 0xC0102030u}});
        title("a title with a coloured outline", 7.5,
              {{L"size", 0.15}, {L"outline", 0.04}, {L"outline-color", 0xFFC02010u}});
        title("a title half faded in", 4, {{L"fade-in", 0.96}});
        title("a title that rolls up", 4.3, {{L"roll", 1}});
        const auto effect = [&row](const char* name, double most, const char* kind,
                                   const std::vector<std::pair<const wchar_t*, double>>& numbers) {
            row(name, most, [=](const T& t, const Node& p) {
                const Node clip = t.Clip();
                t.OnColour(p, clip);
                const Node made = t.AddEffect(clip, kind);
                for (const auto& [parameter, number] : numbers)
                    Set(made, &INLEParameters::SetNumber, parameter, number);
            });
        };
        effect("exposure", 4, "exposure", {{L"exposure", -1.5}});
        effect("contrast", 4, "contrast", {{L"contrast", 0.5}, {L"brightness", 0.2}});
        effect("saturation", 4, "saturation", {{L"saturation", 0}});
        effect("white balance", 4, "white-balance", {{L"temperature", 3000}});
        effect("black and white", 4, "black-and-white", {{L"red", 0.5}});
        effect("vignette", 6, "vignette", {{L"amount", 0.7}});
        effect("blur", 4, "blur", {{L"size", 6}});
        effect("sharpen", 8, "sharpen", {});
        effect("noise reduction", 4, "noise-reduction", {});
        effect("crop", 4, "crop", {{L"left", 0.25}, {L"bottom", 0.3}});
        effect("mirror", 4, "mirror", {{L"vertical", 1}});
        row("chroma key", 5, [](const T& t, const Node& p) {
            t.OnColour(p, t.Colour(QColor(20, 230, 40)));
            const Node clip = t.Colour(QColor(200, 120, 80));
            t.Add(p, clip, 0, 2);
            Set(clip, &INLETransform::SetScale, &kHalf);
            for (const int index : {1, 2})
                t.AddEffect(t.ClipAt(p, index), "chroma-key");
        });
        row("curves", 4, [](const T& t, const Node& p) {
            const Node clip = t.Clip();
            t.OnColour(p, clip);
            Set(t.AddEffect(clip, "curves"), &INLEParameters::SetText, L"master",
                L"0/0.2 0.5/0.4 1/0.9");
        });
        row("a blur that grows, on a clip that is moved", 5, [](const T& t, const Node& p) {
            const Node clip = t.Trimmed(t.Clip(), 5, 44);
            t.OnColour(p, clip);
            Set(clip, &INLETransform::SetScale, &kHalf);
            const Node blur = t.AddEffect(clip, "blur");
            for (const double time : {0.0, 0.5}) {
                const NLEParameterKeyFrame key = {time, time * 24, NLEInterpolation_Smooth, 0};
                Set(blur, &INLEParameters::PutKeyFrame, L"size", &key, nullptr);
            }
        });
        row("an effect of the whole project", 4, [](const T& t, const Node& p) {
            t.OnColour(p, t.Clip("square.mp4"));
            Set(t.AddEffect(p, "exposure"), &INLEParameters::SetNumber, L"exposure", -1.0);
        });
        row("a small clip inside of another timeline", 3, [](const T& t, const Node& p) {
            const Node inner = t.provider->CreateVirtualTimeline(11);
            t.Add(inner, t.Clip("still.png"), 5);
            t.OnColour(p, inner);
            Set(inner, &INLETransform::SetScale, &kHalf);
        });
        const auto transition = [&row](const char* heading, const char* name, double most,
                                       const Fill& change) {
            row(heading, most, [name, change](const T& t, const Node& p) {
                t.Add(p, t.Trimmed(t.Colour(QColor(40, 90, 160)), 0, 24));
                t.Add(p, t.Trimmed(t.Clip(), 5, 40), 7);
                const Node node = t.Transition(name);
                change(t, node);
                t.Add(p, t.Trimmed(node, 0, 17), 7);
            });
        };
        const auto number = [](const wchar_t* name, double value) {
            return Fill([name, value](const T&, const Node& node) {
                Set(node, &INLEParameters::SetNumber, name, value);
            });
        };
        const Fill plain = [](const T&, const Node&) {};
        transition("a dissolve", "dissolve", 3, plain);
        transition("a wipe", "wipe", 4, plain);
        transition("a soft wipe to the upper left", "wipe", 4,
                   [number](const T& t, const Node& node) {
                       number(L"direction", 7)(t, node);
                       number(L"softness", 0.4)(t, node);
                   });
        transition("a wipe to the upper right", "wipe", 4, number(L"direction", 6));
        transition("a wipe up", "wipe", 4, number(L"direction", 3));
        transition("a circle", "circle", 4, plain);
        transition("a circle that shuts", "circle", 4, number(L"reverse", 1));
        transition("a clock, whose hand goes a little otherwise", "clock", 8, plain);
        transition("barn doors", "barn-doors", 4, plain);
        transition("barn doors that shut vertically", "barn-doors", 4,
                   [number](const T& t, const Node& node) {
                       number(L"direction", 1)(t, node);
                       number(L"reverse", 1)(t, node);
                   });
        row("a dissolve of which the first clip lies above", 3, [](const T& t, const Node& p) {
            t.Add(p, t.Trimmed(t.Clip(), 5, 40), 7);
            t.Add(p, t.Trimmed(t.Colour(QColor(40, 90, 160)), 0, 24));
            t.Add(p, t.Trimmed(t.Transition("dissolve"), 0, 17), 7);
        });
        row("one dissolve after the other", 4, [](const T& t, const Node& p) {
            t.Add(p, t.Trimmed(t.Colour(QColor(40, 90, 160)), 0, 5));
            t.Add(p, t.Trimmed(t.Clip(), 5, 21), 3);
            t.Add(p, t.Trimmed(t.Colour(QColor(120, 120, 120)), 0, 30), 10);
            t.Add(p, t.Trimmed(t.Transition("dissolve"), 0, 2), 3);
            t.Add(p, t.Trimmed(t.Transition("dissolve"), 0, 9), 10);
        });
        row("a clip alone that comes", 3, [](const T& t, const Node& p) {
            t.OnColour(p, t.Clip());
            t.Add(p, t.Trimmed(t.Transition("dissolve"), 0, 24), 0, 1);
        });
        row("a clip alone that goes", 3, [](const T& t, const Node& p) {
            t.OnColour(p, t.Trimmed(t.Clip(), 0, 24));
            t.Add(p, t.Trimmed(t.Transition("dissolve"), 0, 24), 0, 1);
        });
    }

    void pictures()
    {
        QFETCH(Fill, fill);
        QFETCH(double, most);
        const Node project = Project();
        fill(*this, project);
        const Node played = Played(project, 21);
        QVERIFY(played);
        for (const int frame : {12, 20}) {
            const QImage wanted = Frame(project, frame);
            const QImage found = Frame(played, frame);
            QVERIFY(!found.isNull() && !wanted.isNull());
            const double difference = Difference(found, wanted);
            QVERIFY2(difference <= most, qPrintable(QString::number(difference)));
        }
    }

    void sounds_data()
    {
        using T = tst_DocumentPlayer;
        using Sound = INLEAudioStreamProcess;
        QTest::addColumn<Fill>("fill");
        const auto row = [](const char* name, const std::function<void(const Node&)>& change) {
            QTest::newRow(name) << Fill([change](const T& t, const Node& p) {
                const Node clip = t.Trimmed(t.Clip(), 5, 44);
                t.Add(p, clip, 3);
                change(clip);
            });
        };
        row("as it is", [](const Node&) {});
        row("gain", [](const Node& clip) { Set(clip, &Sound::SetVolume, 0.25); });
        row("mute", [](const Node& clip) { Set(clip, &Sound::SetMute, true); });
        row("balance", [](const Node& clip) { Set(clip, &Sound::SetBalance, -0.5); });
        row("fades", [](const Node& clip) {
            Set(clip, &Sound::SetFadeInEnable, true);
            Set(clip, &Sound::SetFadeInRange, 10);
            Set(clip, &Sound::SetFadeOutEnable, true);
            Set(clip, &Sound::SetFadeOutRange, 20);
        });
        row("a volume curve", [](const Node& clip) {
            NLEComPtr<INLEKeyFrameParam> curve;
            clip.query<Sound>()->GetVolumeKeyFrameParam(curve.put());
            curve->SetPoint(0.2, 1);
            curve->SetPoint(0.8, 0.1);
            curve->SetPoint(1.2, 0.7);
        });
        row("twice as fast", [](const Node& clip) {
            BagOf(clip)->SetRational(NLEKey::Speed::kScale, {2, 1});
            BagOf(clip)->SetInt(NLEKey::Speed::kEnabled, 1);
        });
        row("frozen",
            [](const Node& clip) { BagOf(clip)->SetInt(NLEKey::Freeze::kFreeze_Enabled, 1); });
        row("picture alone", [](const Node& clip) {
            BagOf(clip)->SetInt(NLEKey::Render::kRender_Mode, NLERender_VideoOnly);
        });
        const auto faded = [](const char* name, int choice, bool isAlone) {
            QTest::newRow(name) << Fill([choice, isAlone](const T& t, const Node& p) {
                if (!isAlone)
                    t.Add(p, t.Trimmed(t.Clip(), 0, 29));
                t.Add(p, t.Trimmed(t.Clip(), 0, 39), 10);
                const Node node = t.Transition("dissolve");
                Set(node, &INLEParameters::SetNumber, L"sound", double(choice));
                t.Add(p, t.Trimmed(node, 0, 19), 10);
            });
        };
        faded("a dissolve", 0, false);
        faded("a dissolve with equal power", 1, false);
        faded("a dissolve without a fade", 2, false);
        faded("a clip alone that comes", 0, true);
        QTest::newRow("tracks of a mixer, one of them alone")
            << Fill([](const T& t, const Node& p) {
                   t.Add(p, t.Clip(), 0, 4);
                   t.Add(p, t.Clip(), 0, 5);
                   const tagMixerParam strip = {0.5, 0.25, 0, 1};
                   Set(p, &INLEMixerSetting::SetParam, 5, &strip);
               });
    }

    void sounds()
    {
        QFETCH(Fill, fill);
        const Node project = Project();
        fill(*this, project);
        const int frames = TotalOf(project).out + 1;
        const Node played = Played(project, frames);
        QVERIFY(played);
        for (int frame = 1; frame < frames - 1; ++frame) {
            const Stereo wanted = Sound(project, frame);
            const Stereo found = Sound(played, frame);
            for (const size_t channel : {0, 1}) {
                const QString deviation =
                    Deviation(Loudness(found[channel]), Loudness(wanted[channel]), 0.03);
                QVERIFY2(deviation.isEmpty(),
                         qPrintable(QString("frame %1: %2").arg(frame).arg(deviation)));
            }
        }
    }
};

QTEST_MAIN(tst_DocumentPlayer)
#include "tst_document_player.moc"
