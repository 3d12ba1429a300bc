// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ProjectFields.h"

#include "CommonLib/NLEWraper/FMixerSettingDelegate.h"
#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/NLETimelineContextPropertyService.h"
#include "EngineApi/NLECommon.h"
#include "EngineApi/NLEKey.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

using Profile = tagNLEProjectProfile;
namespace Key = NLEKey::Context;

constexpr double kPercent = 100;
constexpr double kLoudest = 16; // linear gain
constexpr int kLongestSide = 16384;
constexpr NLERational kRates[] = {{24000, 1001}, {24, 1}, {25, 1},       {30000, 1001},
                                  {30, 1},       {50, 1}, {60000, 1001}, {60, 1}};
constexpr double kNearRate = 1e-5;
constexpr int kSampleRates[] = {32000, 44100, 48000, 88200, 96000};
constexpr int kChannels[] = {1, 2, 6, 8};
constexpr int kDepths[] = {8, 10};

QString Tr(const char* text)
{
    return QCoreApplication::translate("ProjectFields", text);
}

Profile ProfileOf(const NLEComPtr<INLETimeline>& project)
{
    Profile profile = {};
    if (const auto setting = project.query<INLEProjectSetting>())
        setting->GetProfile(&profile);
    return profile;
}

/// A number of the profile, by a reference to it.
template <typename Part>
void SetProfileAccess(PropertyField& field, const NLEComPtr<INLETimeline>& project, Part part)
{
    SetAccess(
        field,
        [project, part] {
            Profile profile = ProfileOf(project);
            return double(part(profile));
        },
        [project, part](const QVariant& value) {
            Profile profile = ProfileOf(project);
            part(profile) = value.toInt();
            const auto setting = project.query<INLEProjectSetting>();
            return setting && setting->SetProfile(&profile) == S_OK;
        });
}

template <typename Part>
PropertyField Side(const char* title, const NLEComPtr<INLETimeline>& project, Part part)
{
    PropertyField field;
    field.title = Tr(title);
    field.kind = NLEParameter_Whole;
    field.lowest = 2;
    field.highest = kLongestSide;
    field.suffix = Tr(QT_TRANSLATE_NOOP("ProjectFields", " px"));
    SetProfileAccess(field, project, part);
    return field;
}

/// Makes a choice of a number of which \a values are usual. Another value that is there is added.
template <typename Values>
void Choose(PropertyField& field, const Values& values)
{
    QVector<double> all(std::begin(values), std::end(values));
    const double now = field.value().toDouble();
    if (!all.contains(now))
        all.append(now);
    field.kind = NLEParameter_Choice;
    for (const double value : qAsConst(all))
        field.choices += QLocale().toString(value, 'g', 6) + field.suffix;
    field.value = [all, get = field.value] { return all.indexOf(get().toDouble()); };
    field.change = [all, change = field.change](const QVariant& index) {
        return change(all.value(index.toInt()));
    };
}

template <typename Part, typename Values>
PropertyField SoundField(const char* title, const char* suffix, const Values& values,
                         const NLEComPtr<INLETimeline>& project, Part part)
{
    PropertyField field;
    field.title = Tr(title);
    if (suffix)
        field.suffix = Tr(suffix);
    SetProfileAccess(field, project, part);
    Choose(field, values);
    return field;
}

double RateOf(const NLEComPtr<INLETimeline>& project)
{
    return NLECommon::ToDouble(ProfileOf(project).frameRate);
}

/// The usual rate that a rate, maybe one of millionths, stands for; else its own.
NLERational Usual(double rate)
{
    for (const NLERational& usual : kRates) {
        if (std::abs(NLECommon::ToDouble(usual) - rate) < kNearRate)
            return usual;
    }
    return NLECommon::RateToRational(rate);
}

bool SetRate(const NLEComPtr<INLETimeline>& project, double rate)
{
    Profile profile = ProfileOf(project);
    profile.frameRate = Usual(rate);
    const auto setting = project.query<INLEProjectSetting>();
    return setting && setting->SetProfile(&profile) == S_OK;
}

PropertyField Rate(const NLEComPtr<INLETimeline>& project)
{
    PropertyField field;
    field.title = Tr(QT_TRANSLATE_NOOP("ProjectFields", "Frame rate"));
    field.suffix = Tr(QT_TRANSLATE_NOOP("ProjectFields", " fps"));
    SetAccess(
        field, [project] { return NLECommon::ToDouble(Usual(RateOf(project))); },
        [project](const QVariant& rate) { return SetRate(project, rate.toDouble()); });
    QVector<double> rates;
    for (const NLERational& usual : kRates)
        rates.append(NLECommon::ToDouble(usual));
    Choose(field, rates);
    int clips = 0;
    if (const auto composite = project.query<INLETimelineComposite>())
        composite->GetClipCount(&clips);
    field.isFixed = clips > 0;
    return field;
}

/// The settings that a project keeps for all of its renders.
struct Context : NLETimelineContextPropertyService
{
    explicit Context(const NLEComPtr<INLETimeline>& project)
    {
        m_basin = project.query<INLEBasin>();
    }
};

PropertyField WholeSetting(const char* title, int kind, int preset, const wchar_t* key,
                           const NLEComPtr<INLETimeline>& project)
{
    PropertyField field;
    field.title = Tr(title);
    field.kind = kind;
    field.preset = double(preset);
    SetAccess(
        field,
        [context = std::make_shared<Context>(project), key, preset] {
            int value = preset;
            context->GetIntValue(key, value);
            return double(value);
        },
        [context = std::make_shared<Context>(project), key](const QVariant& value) {
            return context->SetIntValue(key, value.toInt());
        });
    return field;
}

PropertyField PreviewScale(const NLEComPtr<INLETimeline>& project)
{
    PropertyField field;
    field.title = Tr(QT_TRANSLATE_NOOP("ProjectFields", "Preview scale"));
    field.lowest = 0.05;
    field.preset = 1.0;
    field.factor = kPercent;
    field.suffix = Tr(QT_TRANSLATE_NOOP("ProjectFields", " %"));
    SetAccess(
        field,
        [context = std::make_shared<Context>(project)] {
            double scale = 1;
            context->GetDoubleValue(Key::kContext_PreviewScale, scale);
            return scale;
        },
        [context = std::make_shared<Context>(project)](const QVariant& value) {
            return context->SetDoubleValue(Key::kContext_PreviewScale, value.toDouble());
        });
    return field;
}

/// Colours are kept as the integer of their bits.
PropertyField Background(const NLEComPtr<INLETimeline>& project)
{
    PropertyField field;
    field.title = Tr(QT_TRANSLATE_NOOP("ProjectFields", "Background"));
    field.kind = NLEParameter_Color;
    field.preset = double(0xFF000000u);
    SetAccess(
        field,
        [context = std::make_shared<Context>(project)] {
            int argb = int(0xFF000000u);
            context->GetIntValue(Key::kContext_BackgroundColor, argb);
            return double(std::uint32_t(argb));
        },
        [context = std::make_shared<Context>(project)](const QVariant& value) {
            return context->SetIntValue(Key::kContext_BackgroundColor,
                                        int(std::uint32_t(value.toDouble())));
        });
    return field;
}

/// One number of a strip, by a reference to it.
template <typename Part>
PropertyField StripField(const char* title, int kind, double preset,
                         const NLEComPtr<INLETimeline>& project, int level, Part part)
{
    PropertyField field;
    field.title = Tr(title);
    field.kind = kind;
    field.preset = preset;
    const auto read = [project, level] {
        tagMixerParam strip = {1, 0, 0, 0};
        NLETimeline node(project, ExactType_Project, nullptr);
        FMixerSettingDelegate(&node, nullptr).GetMixerParam(level, &strip);
        return strip;
    };
    SetAccess(
        field,
        [read, part] {
            tagMixerParam strip = read();
            return double(part(strip));
        },
        [read, part, project, level](const QVariant& value) {
            tagMixerParam strip = read();
            part(strip) = static_cast<std::decay_t<decltype(part(strip))>>(value.toDouble());
            NLETimeline node(project, ExactType_Project, nullptr);
            return FMixerSettingDelegate(&node, nullptr).SetMixerParam(level, strip);
        });
    return field;
}

PropertyField Percent(PropertyField field, double lowest, double highest)
{
    field.lowest = lowest;
    field.highest = highest;
    field.factor = kPercent;
    field.suffix = Tr(QT_TRANSLATE_NOOP("ProjectFields", " %"));
    return field;
}

} // namespace

QVector<PropertyField> ProjectFields::Format(const NLEComPtr<INLETimeline>& project)
{
    return {Side(
                QT_TRANSLATE_NOOP("ProjectFields", "Width"), project,
                [](Profile & profile) -> auto& { return profile.frameSize.width; }),
            Side(
                QT_TRANSLATE_NOOP("ProjectFields", "Height"), project,
                [](Profile & profile) -> auto& { return profile.frameSize.height; }),
            Rate(project),
            SoundField(
                QT_TRANSLATE_NOOP("ProjectFields", "Sample rate"),
                QT_TRANSLATE_NOOP("ProjectFields", " Hz"), kSampleRates, project,
                [](Profile & profile) -> auto& { return profile.sampleRate; }),
            SoundField(
                QT_TRANSLATE_NOOP("ProjectFields", "Channels"), nullptr, kChannels, project,
                [](Profile & profile) -> auto& { return profile.channels; })};
}

QVector<PropertyField> ProjectFields::Drawing(const NLEComPtr<INLETimeline>& project)
{
    PropertyField depth =
        WholeSetting(QT_TRANSLATE_NOOP("ProjectFields", "Bits of a colour"), NLEParameter_Choice,
                     kDepths[0], Key::kContext_BitDepth, project);
    Choose(depth, kDepths);
    depth.preset = 0.0;
    return {PreviewScale(project),
            WholeSetting(QT_TRANSLATE_NOOP("ProjectFields", "Smooth scaling"), NLEParameter_Switch,
                         1, Key::kContext_SmoothScaling, project),
            depth, Background(project)};
}

QVector<int> ProjectFields::MixedLevels(const NLEComPtr<INLETimeline>& project)
{
    const NLETimeline node(project, ExactType_Project, nullptr);
    QVector<int> levels;
    for (const auto& clip : node.GetChilds()) {
        int level = 0;
        clip->GetLevel(&level);
        if (!levels.contains(level))
            levels.append(level);
    }
    std::sort(levels.begin(), levels.end());
    return levels;
}

QVector<PropertyField> ProjectFields::Strip(const NLEComPtr<INLETimeline>& project, int level)
{
    const auto number = [&](const char* title, int kind, double preset, auto part) {
        return StripField(title, kind, preset, project, level, part);
    };
    return {Percent(number(
                        QT_TRANSLATE_NOOP("ProjectFields", "Volume"), NLEParameter_Number, 1,
                        [](tagMixerParam & strip) -> auto& { return strip.volume; }),
                    0, kLoudest),
            Percent(number(
                        QT_TRANSLATE_NOOP("ProjectFields", "Balance"), NLEParameter_Number, 0,
                        [](tagMixerParam & strip) -> auto& { return strip.balance; }),
                    -1, 1),
            number(
                QT_TRANSLATE_NOOP("ProjectFields", "Mute"), NLEParameter_Switch, 0,
                [](tagMixerParam & strip) -> auto& { return strip.mute; }),
            number(
                QT_TRANSLATE_NOOP("ProjectFields", "Solo"), NLEParameter_Switch, 0,
                [](tagMixerParam & strip) -> auto& { return strip.solo; })};
}
