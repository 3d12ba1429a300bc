// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

/// Keys of the engine's property bags.
namespace NLEKey {

namespace Render {
/// Rational, frames a second; live view of the node's render frame rate.
inline constexpr const wchar_t* kRender_Framerate = L"kRender_Framerate";
/// Integer, read-only: length of the node's total range in frames.
inline constexpr const wchar_t* kRender_TotalFrameCount = L"kRender_TotalFrameCount";
/// Integer 0xAARRGGBB: what shows where no clip does.
inline constexpr const wchar_t* kRender_BackgroundColor = L"kRender_BackgroundColor";
/// Integer, an NLERenderMode.
inline constexpr const wchar_t* kRender_Mode = L"kRender_Mode";
} // namespace Render

namespace Speed {
/// Rational: playing speed, 1 normal, 2 twice as fast.
inline constexpr const wchar_t* kScale = L"kSpeed_Scale";
/// Integer 1 when the speed applies.
inline constexpr const wchar_t* kEnabled = L"kSpeed_Enabled";
} // namespace Speed

namespace Freeze {
/// Integer 1 when the clip holds one frame.
inline constexpr const wchar_t* kFreeze_Enabled = L"kFreeze_Enabled";
/// Integer: the frame that a frozen clip shows; its in point when there is none.
/// It counts at normal speed.
inline constexpr const wchar_t* kFreeze_Frame = L"kFreeze_Frame";
} // namespace Freeze

/// Settings of a whole project; its context object holds them.
namespace Context {
/// Double, 0.05 to 1: share of the wanted size that frames are drawn at before they are enlarged.
inline constexpr const wchar_t* kContext_PreviewScale = L"kContext_PreviewScale";
/// Integer: 0 draws scaled and turned pictures without smoothing.
inline constexpr const wchar_t* kContext_SmoothScaling = L"kContext_SmoothScaling";
/// Integer 0xAARRGGBB: background of a project that has no kRender_BackgroundColor.
inline constexpr const wchar_t* kContext_BackgroundColor = L"kContext_BackgroundColor";
} // namespace Context

} // namespace NLEKey
