// SPDX-License-Identifier: LGPL-2.1-or-later
// Effects as a host meets them: the catalogue, their parameters, and what keeps them.
#include "EngineApi/INLETransform.h"
#include "EngineApi/NLEKey.h"
#include "tests/support/EngineFixture.h"

#include <limits>

/// Numbers of parameters by their names.
using Numbers = std::vector<std::pair<const wchar_t*, double>>;
Q_DECLARE_METATYPE(Numbers)

namespace {

constexpr int kCapacity = 64;

QString NameOf(const Node& effect)
{
    return EngineFixture::TextOf([&](wchar_t* text, int capacity) {
        return effect.query<INLETimelineEffect>()->GetEffectName(text, capacity);
    });
}

NLEComPtr<INLEParameters> ParametersOf(const Node& effect)
{
    return effect.query<INLEParameters>();
}

double NumberOf(const Node& effect, const wchar_t* name)
{
    double number = -12345;
    ParametersOf(effect)->GetNumber(name, &number);
    return number;
}

Node EffectAt(const Node& clip, int index)
{
    Node effect;
    clip.query<INLEEffects>()->GetEffect(index, effect.put());
    return effect;
}

QStringList EffectsOf(const Node& clip)
{
    QStringList names;
    int count = 0;
    clip.query<INLEEffects>()->GetCount(&count);
    for (int index = 0; index < count; ++index)
        names << NameOf(EffectAt(clip, index));
    return names;
}

} // namespace

class tst_EngineEffects : public QObject, public EngineFixture
{
    Q_OBJECT

    /// A project whose clip has two effects, one of them with key frames and one that is off.
    Node EffectProject() const
    {
        const Node clip = Trimmed(Colour(QColor(120, 80, 40)), 5, 44);
        Node project = ProjectWith(clip);
        const Node exposure = AddEffect(clip, "exposure");
        for (const auto& [time, value] : {std::pair(0.1, -1.0), {0.7, 2.5}}) {
            const NLEParameterKeyFrame key = {time, value, NLEInterpolation_Smooth, 0};
            ParametersOf(exposure)->PutKeyFrame(L"exposure", &key, nullptr);
        }
        ParametersOf(exposure)->SetNumber(L"black", 0.0123456789);
        const Node curves = AddEffect(clip, "curves");
        ParametersOf(curves)->SetText(L"master", L"0/0.25 1/0.75");
        AddEffect(clip, "black-and-white")->SetEnabled(false);
        ParametersOf(AddEffect(project, "blur"))->SetNumber(L"size", 3);
        return project;
    }

    void compareEffects(const Node& found, const Node& wanted)
    {
        QCOMPARE(EffectsOf(found), QStringList{"blur"});
        QCOMPARE(NumberOf(EffectAt(found, 0), L"size"), 3.0);
        const Node clip = ClipAt(found, 0);
        QCOMPARE(EffectsOf(clip), QStringList({"exposure", "curves", "black-and-white"}));
        bool isOn = true;
        EffectAt(clip, 2)->GetEnabled(&isOn);
        QVERIFY(!isOn);
        const auto exposure = ParametersOf(EffectAt(clip, 0));
        NLEParameterKeyFrame key = {};
        QCOMPARE(exposure->GetKeyFrame(L"exposure", 1, &key), S_OK);
        QVERIFY(std::abs(key.time - 0.7) < 1e-12);
        QCOMPARE(key.interpolation, std::int32_t(NLEInterpolation_Smooth));
        QCOMPARE(NumberOf(EffectAt(clip, 0), L"black"), 0.0123456789);
        for (const int frame : {0, 12, 30})
            QCOMPARE(Frame(found, frame), Frame(wanted, frame));
    }

private slots:
    void catalogue()
    {
        const auto catalogue = Nodes().query<INLEEffectCatalog>();
        int count = 0;
        QCOMPARE(catalogue->GetCount(NLECatalog_Effect, &count), S_OK);
        QStringList names;
        for (int index = 0; index < count; ++index) {
            names << TextOf([&](wchar_t* text, int capacity) {
                return catalogue->GetName(NLECatalog_Effect, index, text, capacity);
            });
            const Node effect = Effect(names.back().toLatin1().constData());
            QCOMPARE(NameOf(effect), names.back());
        }
        for (const char* name : {"exposure", "contrast", "saturation", "white-balance", "curves",
                                 "lut", "blur", "sharpen", "chroma-key", "crop", "mirror",
                                 "vignette", "noise-reduction", "black-and-white", "drop-shadow"})
            QVERIFY2(names.removeAll(name) == 1, name);
        QCOMPARE(catalogue->GetCount(NLECatalog_AudioFilter, &count), S_OK);
        QCOMPARE(count, 9);
        QCOMPARE(catalogue->GetCount(NLECatalog_Effect, &count), S_OK);
        Node effect;
        QCOMPARE(Nodes()->CreateEffect(L"no such effect", effect.put()), E_INVALIDARG);
        QVERIFY(!effect);
        QCOMPARE(catalogue->GetName(NLECatalog_Effect, count, nullptr, 0), E_INVALIDARG);
        QCOMPARE(catalogue->GetCount(77, &count), E_INVALIDARG);
    }

    /// Every number of every effect: the ends of its range are taken, what lies beyond is not.
    void refusedNumbers()
    {
        const auto catalogue = Nodes().query<INLEEffectCatalog>();
        int effects = 0;
        catalogue->GetCount(NLECatalog_Effect, &effects);
        int numbers = 0;
        for (int index = 0; index < effects; ++index) {
            const QString kind = TextOf([&](wchar_t* text, int capacity) {
                return catalogue->GetName(NLECatalog_Effect, index, text, capacity);
            });
            const auto parameters = ParametersOf(Effect(kind.toLatin1().constData()));
            int count = 0;
            parameters->GetParameterCount(&count);
            for (int parameter = 0; parameter < count; ++parameter) {
                NLEParameterRecord record = {};
                std::array<wchar_t, kCapacity> name = {};
                QCOMPARE(parameters->GetParameter(parameter, &record, name.data(), kCapacity),
                         S_OK);
                double value = -1;
                if (record.kind == NLEParameter_Text || record.kind == NLEParameter_File) {
                    QCOMPARE(parameters->GetNumber(name.data(), &value), E_INVALIDARG);
                    continue;
                }
                ++numbers;
                QCOMPARE(parameters->GetNumber(name.data(), &value), S_OK);
                QCOMPARE(value, record.preset);
                for (const double end : {record.lowest, record.highest})
                    QCOMPARE(parameters->SetNumber(name.data(), end), S_OK);
                for (const double beyond : {record.lowest - 0.001, record.highest + 0.001,
                                            std::numeric_limits<double>::quiet_NaN(),
                                            std::numeric_limits<double>::infinity()}) {
                    const NLEParameterKeyFrame key = {0.5, beyond, 1, 0};
                    QCOMPARE(parameters->SetNumber(name.data(), beyond), E_INVALIDARG);
                    QCOMPARE(parameters->PutKeyFrame(name.data(), &key, nullptr), E_INVALIDARG);
                }
                QCOMPARE(parameters->GetNumber(name.data(), &value), S_OK);
                QCOMPARE(value, record.highest);
            }
        }
        QVERIFY(numbers > 30);
    }

    void refusedCalls()
    {
        const auto mirror = ParametersOf(Effect("mirror"));
        const NLEParameterKeyFrame key = {0.5, 1, 1, 0};
        QCOMPARE(mirror->PutKeyFrame(L"horizontal", &key, nullptr), E_INVALIDARG);
        QCOMPARE(mirror->SetNumber(L"horizontal", 0.5), E_INVALIDARG);
        QCOMPARE(mirror->SetNumber(L"diagonal", 1), E_INVALIDARG);
        QCOMPARE(mirror->SetNumber(nullptr, 1), E_INVALIDARG);
        const auto blur = ParametersOf(Effect("blur"));
        const NLEParameterKeyFrame odd = {0.5, 1, 3, 0};
        QCOMPARE(blur->PutKeyFrame(L"size", &odd, nullptr), E_INVALIDARG);
        QCOMPARE(blur->DeleteKeyFrame(L"size", 0), E_INVALIDARG);
        const auto curves = ParametersOf(Effect("curves"));
        QCOMPARE(curves->SetText(L"master", L"0/0 0/1"), E_FAIL);
        QCOMPARE(curves->SetText(L"master", L"0/0 1/1"), S_OK);
        const auto table = ParametersOf(Effect("lut"));
        QCOMPARE(table->SetText(L"file", Path("missing.cube").toStdWString().c_str()), E_FAIL);
    }

    void clipsCarryEffects()
    {
        const Node clip = Colour(Qt::red);
        const Node other = Colour(Qt::blue);
        const auto effects = clip.query<INLEEffects>();
        const Node blur = AddEffect(clip, "blur");
        AddEffect(clip, "crop");
        QCOMPARE(effects->AddEffect(Effect("mirror").get(), 0), S_OK);
        QCOMPARE(EffectsOf(clip), QStringList({"mirror", "blur", "crop"}));
        QCOMPARE(effects->MoveEffect(0, 2), S_OK);
        QCOMPARE(EffectsOf(clip), QStringList({"blur", "crop", "mirror"}));
        QCOMPARE(effects->MoveEffect(2, 1), S_OK);
        QCOMPARE(EffectsOf(clip), QStringList({"blur", "mirror", "crop"}));
        QCOMPARE(effects->MoveEffect(0, 3), E_INVALIDARG);
        QCOMPARE(effects->AddEffect(blur.get(), -1), E_INVALIDARG);
        QCOMPARE(other.query<INLEEffects>()->AddEffect(blur.get(), -1), E_INVALIDARG);
        QCOMPARE(other.query<INLEEffects>()->RemoveEffect(blur.get()), E_INVALIDARG);
        QCOMPARE(effects->AddEffect(other.get(), -1), E_INVALIDARG);
        QCOMPARE(Project().query<INLETimelineComposite>()->AddClip(Effect("blur").get()),
                 E_INVALIDARG);
        QCOMPARE(effects->RemoveEffect(blur.get()), S_OK);
        QCOMPARE(other.query<INLEEffects>()->AddEffect(blur.get(), -1), S_OK);
        QVERIFY(!clip.query<INLETimelineEffect>() && !clip.query<INLEParameters>());
        QVERIFY(!blur.query<INLEEffects>() && !blur.query<INLEBlendSetting>());
    }

    /// The effect outlives its clip and can go to another one.
    void effectWithoutItsClip()
    {
        const Node effect = Effect("blur");
        {
            const Node clip = Colour(Qt::red);
            QCOMPARE(clip.query<INLEEffects>()->AddEffect(effect.get(), -1), S_OK);
        }
        QCOMPARE(TotalOf(effect).out, -1);
        QCOMPARE(Colour(Qt::red).query<INLEEffects>()->AddEffect(effect.get(), -1), S_OK);
    }

    void clones()
    {
        const Node project = EffectProject();
        Node copy;
        QCOMPARE(project->Clone(true, copy.put()), S_OK);
        compareEffects(copy, project);
        // A change of the copy is its own.
        ParametersOf(EffectAt(ClipAt(copy, 0), 0))->DeleteKeyFrame(L"exposure", 1);
        QVERIFY(Frame(copy, 30) != Frame(project, 30));
    }

    void documents_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("MLT") << "effects.mlt";
        QTest::newRow("OpenTimelineIO") << "effects.otio";
    }
    void documents()
    {
        QFETCH(QString, name);
        const Node project = EffectProject();
        QVERIFY(Save(project, folder.filePath(name)));
        compareEffects(Load(folder.filePath(name)), project);
    }

    /// A table of colours is named relative to the document; one that has gone changes nothing.
    void documentsWithTables()
    {
        QByteArray text = "LUT_3D_SIZE 2\n";
        for (int entry = 0; entry < 8; ++entry)
            text += "0 0.5 1\n";
        const QString table = Path("film/tables/blue.cube");
        QVERIFY(SetContents(table, text));
        const Node clip = Colour(Qt::red);
        const Node project = ProjectWith(clip);
        QCOMPARE(
            ParametersOf(AddEffect(clip, "lut"))->SetText(L"file", table.toStdWString().c_str()),
            S_OK);
        QCOMPARE(Frame(project, 0).pixel(9, 9), qRgb(0, 128, 255));
        QVERIFY(Save(project, Path("film/film.mlt")));
        QVERIFY(QFile::rename(Path("film"), Path("moved")));
        QCOMPARE(Frame(Load(Path("moved/film.mlt")), 0).pixel(9, 9), qRgb(0, 128, 255));
        QVERIFY(QFile::remove(Path("moved/tables/blue.cube")));
        QCOMPARE(Frame(Load(Path("moved/film.mlt")), 0).pixel(9, 9), qRgb(255, 0, 0));
    }

    void soundsOfEffects_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<double>("hertz");
        QTest::addColumn<Numbers>("numbers");
        QTest::addColumn<double>("lowest");
        QTest::addColumn<double>("highest");
        // Gains of a tone of half of full scale: its peak is at -6 dB, its loudness at -9.
        const auto row = [](const char* name, double hertz, const Numbers& numbers, double lowest,
                            double highest) {
            QTest::addRow("%s at %g Hz", name, hertz)
                << QByteArray(name) << hertz << numbers << lowest << highest;
        };
        row("compressor", 440, {{L"threshold", -21}, {L"ratio", 4}}, 0.27, 0.45);
        row("limiter", 440, {{L"limit", -12}}, 0.47, 0.51);
        row("gate", 440, {{L"threshold", -3}, {L"range", 20}}, 0.09, 0.13);
        row("gate", 440, {{L"threshold", -20}}, 0.99, 1.01);
        row("high-pass", 440, {{L"frequency", 4000}}, 0.01, 0.014);
        row("high-pass", 440, {{L"frequency", 44}}, 0.98, 1.02);
        row("low-pass", 440, {{L"frequency", 110}}, 0.055, 0.068);
        row("de-esser", 440, {}, 0.97, 1.03);
        row("de-esser", 8000, {{L"depth", 0}}, 0.97, 1.03);
        row("de-esser", 8000, {}, 0.05, 0.5);
        row("echo", 440, {{L"delay", 500}, {L"level", -6}, {L"repeats", 1}}, 1.48, 1.52);
    }
    /// Alone, copied and from a document, read on from the start or in its middle.
    void soundsOfEffects()
    {
        QFETCH(QByteArray, name);
        QFETCH(double, hertz);
        QFETCH(Numbers, numbers);
        QFETCH(double, lowest);
        QFETCH(double, highest);
        TestClip made;
        made.codec.clear();
        made.audioCodec = "pcm_s16le";
        made.toneHz = hertz;
        made.frames = 100;
        QCOMPARE(MakeTestClip(Path("tone.wav"), made), QString());
        const Node clip = Media(Path("tone.wav"));
        const Node project = ProjectWith(clip);
        constexpr int frame = 60;
        const double before = Loudness(Sound(project, frame)[0]);
        QVERIFY(std::abs(before - kToneLoudness) < 0.01);
        Node filter;
        QCOMPARE(Nodes()->CreateAudioFilter(QString::fromLatin1(name).toStdWString().c_str(),
                                            filter.put()),
                 S_OK);
        QCOMPARE(NameOf(filter), QString::fromLatin1(name));
        for (const auto& [parameter, number] : numbers)
            QCOMPARE(ParametersOf(filter)->SetNumber(parameter, number), S_OK);
        QCOMPARE(clip.query<INLEEffects>()->AddEffect(filter.get(), -1), S_OK);
        Node copy;
        QCOMPARE(project->Clone(true, copy.put()), S_OK);
        QVERIFY(Save(project, Path("sound.mlt")));
        for (const Node& node : {project, copy, Load(Path("sound.mlt"))}) {
            const double gain = Loudness(Sound(node, frame)[0]) / before;
            QVERIFY2(gain >= lowest && gain <= highest, qPrintable(QString::number(gain)));
        }
        filter->SetEnabled(false);
        QCOMPARE(Loudness(Sound(project, frame)[0]), before);
    }

    /// A tone that begins goes on in its reverb's reflections, which come later.
    void reverb()
    {
        TestClip made;
        made.codec.clear();
        made.audioCodec = "pcm_s16le";
        made.toneStart = 1;
        made.frames = 75;
        QCOMPARE(MakeTestClip(Path("late.wav"), made), QString());
        const Node clip = Media(Path("late.wav"));
        const Node project = ProjectWith(clip);
        const Stereo plain = Sound(project, 25);
        const Stereo plainLater = Sound(project, 40);
        Node filter;
        QCOMPARE(Nodes()->CreateAudioFilter(L"reverb", filter.put()), S_OK);
        ParametersOf(filter)->SetNumber(L"delay", 100);
        QCOMPARE(clip.query<INLEEffects>()->AddEffect(filter.get(), -1), S_OK);
        const auto difference = [](const Stereo& a, const Stereo& b) {
            double most = 0;
            for (size_t i = 0; i < a[0].size(); ++i)
                most = std::max(most, std::abs(a[0][i] - b[0][i]));
            return most;
        };
        QVERIFY(difference(Sound(project, 25), plain) < 0.001);
        QVERIFY(difference(Sound(project, 40), plainLater) > 0.02);
    }

    /// A single clip of a project goes to the encoder as it was decoded, but not with an effect.
    void encodedWithItsEffect()
    {
        TestClip made;
        made.frames = 10;
        QCOMPARE(MakeTestClip(Path("clip.mp4"), made), QString());
        const Node clip = Media(Path("clip.mp4"));
        const Node project = ProjectWith(clip);
        ParametersOf(AddEffect(clip, "exposure"))->SetNumber(L"exposure", -5);
        const auto encoder = provider->CreateMediaEncoder();
        NLEEncodeSettings settings = {};
        settings.frameSize = {320, 180};
        QCOMPARE(encoder->Open(project.get(), Path("film.mp4").toStdWString().c_str(), &settings),
                 S_OK);
        QCOMPARE(encoder->Encode(nullptr, nullptr), S_OK);
        const QImage found = Frame(Media(Path("film.mp4")), 4);
        const QImage bright = Frame(Media(Path("clip.mp4")), 4);
        const auto lightest = [](const QImage& picture) {
            int most = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x)
                    most = std::max(most, qGray(picture.pixel(x, y)));
            }
            return most;
        };
        QVERIFY(lightest(bright) > 200);
        QVERIFY(lightest(found) < 80);
    }
};

QTEST_MAIN(tst_EngineEffects)
#include "tst_engine_effects.moc"
