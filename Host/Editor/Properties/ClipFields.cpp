// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Properties/ClipFields.h"

#include "CommonLib/NLEWraper/FAudioStreamProcessHelper.h"
#include "CommonLib/NLEWraper/FTimelineBlendingHelper.h"
#include "CommonLib/NLEWraper/FTimelineTransformHelper.h"
#include "EngineApi/INLETitle.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr double kPercent = 100;
constexpr double kOpaque = 255;
constexpr double kLargestScale = 10;
constexpr double kFurthest = 2; // pictures beside the parent
constexpr double kFullTurn = 360;
constexpr double kLoudest = 16; // linear gain
constexpr double kOctaves = 24; // semitones
constexpr double kDenoise = 97; // decibels

QString Tr(const char* text)
{
    return QCoreApplication::translate("ClipFields", text);
}

using Transform = std::shared_ptr<FTimelineTransformHelper>;
using Blend = std::shared_ptr<FTimelineBlendingHelper>;
using Audio = std::shared_ptr<FAudioStreamProcessHelper>;

/// A number of a helper of the library, by its getter and setter.
template <typename Helper, typename Get, typename Set>
PropertyField Number(const char* title, double lowest, double highest, double preset,
                     const Helper& helper, Get get, Set set)
{
    PropertyField field;
    field.title = Tr(title);
    field.lowest = lowest;
    field.highest = highest;
    field.preset = preset;
    SetAccess(
        field, [helper, get] { return double(get(*helper)); },
        [helper, set](const QVariant& value) {
            set(*helper, value.toDouble());
            return true;
        });
    return field;
}

template <typename Helper, typename Get, typename Set>
PropertyField Switch(const char* title, bool preset, const Helper& helper, Get get, Set set)
{
    PropertyField field = Number(
        title, 0, 1, preset ? 1 : 0, helper, [get](auto& node) { return (node.*get)(); },
        [set](auto& node, double value) { (node.*set)(value != 0); });
    field.kind = NLEParameter_Switch;
    return field;
}

PropertyField Percent(PropertyField field)
{
    field.factor = kPercent;
    field.suffix = Tr(QT_TRANSLATE_NOOP("ClipFields", " %"));
    return field;
}

PropertyField Whole(PropertyField field, const QString& suffix)
{
    field.kind = NLEParameter_Whole;
    field.suffix = suffix;
    return field;
}

PropertyField Margin(const NLEComPtr<INLETimeline>& clip)
{
    PropertyField field = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Fit"), 0, NLEMargin_None, NLEMargin_Fit, clip,
        [](INLETimeline& node) {
            tagNLEMarginMode mode = NLEMargin_Fit;
            node.GetMarginMode(&mode);
            return mode;
        },
        [](INLETimeline& node, double mode) { node.SetMarginMode(tagNLEMarginMode(int(mode))); });
    field.kind = NLEParameter_Choice;
    field.choices = QStringList{Tr(QT_TRANSLATE_NOOP("ClipFields", "Whole picture")),
                                Tr(QT_TRANSLATE_NOOP("ClipFields", "Whole frame")),
                                Tr(QT_TRANSLATE_NOOP("ClipFields", "Stretched")),
                                Tr(QT_TRANSLATE_NOOP("ClipFields", "Pixel for pixel"))};
    return field;
}

PropertyField Alpha(const Blend& blend)
{
    PropertyField field = Percent(Number(
        QT_TRANSLATE_NOOP("ClipFields", "Opacity"), 0, kOpaque, kOpaque, blend,
        [](FTimelineBlendingHelper& node) { return node.GetBlendingAlpha(); },
        [](FTimelineBlendingHelper& node, double alpha) { node.SetBlendingAlpha(qRound(alpha)); }));
    field.factor = kPercent / kOpaque;
    return field;
}

/// A fade of no frame is none.
template <typename Get, typename IsOn, typename Set, typename SwitchOn>
PropertyField Fade(const char* title, int longest, const Audio& audio, Get get, IsOn isOn, Set set,
                   SwitchOn switchOn)
{
    const PropertyField field = Number(
        title, 0, longest, 0, audio,
        [get, isOn](auto& node) { return (node.*isOn)() ? (node.*get)() : 0; },
        [set, switchOn](auto& node, double frames) {
            (node.*set)(qRound(frames));
            (node.*switchOn)(frames > 0);
        });
    return Whole(field, Tr(QT_TRANSLATE_NOOP("ClipFields", " fr")));
}

PropertyField Denoise(const Audio& audio)
{
    const PropertyField field = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Noise reduction"), 0, kDenoise, 0, audio,
        [](FAudioStreamProcessHelper& node) {
            int level = 0;
            node.GetDenoiseLevel(level);
            return node.GetDenoiseEnable() ? level : 0;
        },
        [](FAudioStreamProcessHelper& node, double level) {
            node.SetDenoiseLevel(qRound(level));
            node.SetDenoiseEnable(level > 0);
        });
    return Whole(field, Tr(QT_TRANSLATE_NOOP("ClipFields", " dB")));
}

PropertyField Volume(const Audio& audio)
{
    return Percent(Number(
        QT_TRANSLATE_NOOP("ClipFields", "Volume"), 0, kLoudest, 1, audio,
        [](FAudioStreamProcessHelper& node) {
            double volume = 1;
            node.GetVolume(volume);
            return volume;
        },
        [](FAudioStreamProcessHelper& node, double volume) { node.SetVolume(volume); }));
}

int Longest(const NLEComPtr<INLETimeline>& clip)
{
    NLERange range = {};
    clip->GetRange(&range);
    return int(std::max<std::int64_t>(NLERangeLength(range), 1));
}

} // namespace

QVector<PropertyField> ClipFields::Placement(const NLEComPtr<INLETimeline>& clip)
{
    using Helper = FTimelineTransformHelper;
    const auto transform = std::make_shared<Helper>(clip, nullptr);
    PropertyField turn = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Rotation"), -kFullTurn, kFullTurn, 0, transform,
        [](Helper& node) { return node.GetRotate(); },
        [](Helper& node, double degrees) { node.SetRotate(degrees); });
    turn.suffix = Tr(QT_TRANSLATE_NOOP("ClipFields", "°"));
    return {Percent(Number(
                QT_TRANSLATE_NOOP("ClipFields", "Centre X"), -kFurthest, kFurthest + 1, 0.5,
                transform, [](Helper& node) { return node.GetCenterPos().x(); },
                [](Helper& node, double x) {
                    node.SetCenterPos({x, node.GetCenterPos().y()});
                })),
            Percent(Number(
                QT_TRANSLATE_NOOP("ClipFields", "Centre Y"), -kFurthest, kFurthest + 1, 0.5,
                transform, [](Helper& node) { return node.GetCenterPos().y(); },
                [](Helper& node, double y) {
                    node.SetCenterPos({node.GetCenterPos().x(), y});
                })),
            Percent(Number(
                QT_TRANSLATE_NOOP("ClipFields", "Width"), -kLargestScale, kLargestScale, 1,
                transform, [](Helper& node) { return node.GetResizeScale().width(); },
                [](Helper& node, double width) {
                    node.SetResizeScale({width, node.GetResizeScale().height()});
                })),
            Percent(Number(
                QT_TRANSLATE_NOOP("ClipFields", "Height"), -kLargestScale, kLargestScale, 1,
                transform, [](Helper& node) { return node.GetResizeScale().height(); },
                [](Helper& node, double height) {
                    node.SetResizeScale({node.GetResizeScale().width(), height});
                })),
            turn,
            Margin(clip)};
}

QVector<PropertyField> ClipFields::Blending(const NLEComPtr<INLETimeline>& clip)
{
    const auto blend = std::make_shared<FTimelineBlendingHelper>(clip, nullptr);
    PropertyField mode = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Mode"), 0, 12, 0, blend,
        [](FTimelineBlendingHelper& node) { return node.GetBlendingMode(); },
        [](FTimelineBlendingHelper& node, double number) { node.SetBlendingMode(int(number)); });
    mode.kind = NLEParameter_Choice;
    for (const char* name :
         {QT_TRANSLATE_NOOP("ClipFields", "Normal"), QT_TRANSLATE_NOOP("ClipFields", "Multiply"),
          QT_TRANSLATE_NOOP("ClipFields", "Screen"), QT_TRANSLATE_NOOP("ClipFields", "Overlay"),
          QT_TRANSLATE_NOOP("ClipFields", "Darken"), QT_TRANSLATE_NOOP("ClipFields", "Lighten"),
          QT_TRANSLATE_NOOP("ClipFields", "Add"), QT_TRANSLATE_NOOP("ClipFields", "Difference"),
          QT_TRANSLATE_NOOP("ClipFields", "Colour dodge"),
          QT_TRANSLATE_NOOP("ClipFields", "Colour burn"),
          QT_TRANSLATE_NOOP("ClipFields", "Hard light"),
          QT_TRANSLATE_NOOP("ClipFields", "Soft light"),
          QT_TRANSLATE_NOOP("ClipFields", "Exclusion")})
        mode.choices += Tr(name);
    return {Alpha(blend), mode};
}

QVector<PropertyField> ClipFields::Sound(const NLEComPtr<INLETimeline>& clip)
{
    using Helper = FAudioStreamProcessHelper;
    const auto audio = std::make_shared<Helper>(clip, nullptr);
    const PropertyField pan = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Balance"), -1, 1, 0, audio,
        [](Helper& node) { return node.GetBalance(); },
        [](Helper& node, double balance) { node.SetBalance(balance); });
    const PropertyField pitch = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Pitch"), -kOctaves, kOctaves, 0, audio,
        [](Helper& node) { return node.GetPitch(); },
        [](Helper& node, double semitones) { node.SetPitch(qRound(semitones)); });
    return {Volume(audio),
            Switch(QT_TRANSLATE_NOOP("ClipFields", "Mute"), false, audio, &Helper::GetMute,
                   &Helper::SetMute),
            Percent(pan),
            Fade(QT_TRANSLATE_NOOP("ClipFields", "Fade in"), Longest(clip), audio,
                 &Helper::GetFadeInRange, &Helper::GetFadeInEnable, &Helper::SetFadeInRange,
                 &Helper::SetFadeInEnable),
            Fade(QT_TRANSLATE_NOOP("ClipFields", "Fade out"), Longest(clip), audio,
                 &Helper::GetFadeOutRange, &Helper::GetFadeOutEnable, &Helper::SetFadeOutRange,
                 &Helper::SetFadeOutEnable),
            Switch(QT_TRANSLATE_NOOP("ClipFields", "Mono"), false, audio,
                   &Helper::GetMix2MomoEnable, &Helper::SetMix2MomoEnable),
            Whole(pitch, Tr(QT_TRANSLATE_NOOP("ClipFields", " st"))),
            Denoise(audio)};
}

QVector<PropertyField> ClipFields::Color(const NLEComPtr<INLETimeline>& clip)
{
    const auto color = clip.query<INLEColorClip>();
    if (!color)
        return {};
    PropertyField field = Number(
        QT_TRANSLATE_NOOP("ClipFields", "Colour"), 0, 0xFFFFFFFF, 0xFF000000, color,
        [](INLEColorClip& node) {
            std::uint32_t argb = 0;
            node.GetColor(&argb);
            return argb;
        },
        [](INLEColorClip& node, double argb) { node.SetColor(std::uint32_t(argb)); });
    field.kind = NLEParameter_Color;
    return {field};
}
