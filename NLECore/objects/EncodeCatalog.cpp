// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/EncodeCatalog.h"

#include "Com/ComObject.h"
#include "Com/WideText.h"
#include "EngineApi/NLEKey.h"
#include "NLECore/media/MediaWriter.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/ParameterFacet.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/scene/FrameMath.h"

#include <QDir>

#include <algorithm>

namespace nle {

namespace {

namespace Key = NLEKey::Encode;

/// Longest name in a bag, with its terminating zero.
constexpr int kNameLength = 64;

const QString kNotInCatalogue = QStringLiteral("a setting that the catalogue does not have");

struct TextKey
{
    const wchar_t* key;
    std::string EncodeOptions::*field;
};
constexpr TextKey kTextKeys[] = {
    {Key::kContainer, &EncodeOptions::container},
    {Key::kVideoCodec, &EncodeOptions::videoCodec},
    {Key::kAudioCodec, &EncodeOptions::audioCodec},
    {Key::kProfile, &EncodeOptions::profile},
    {Key::kSpeed, &EncodeOptions::speed},
    {Key::kPixelFormat, &EncodeOptions::pixelFormat},
    {Key::kSampleFormat, &EncodeOptions::sampleFormat},
};

struct NumberKey
{
    const wchar_t* key;
    int EncodeOptions::*field;
    int lowest;
    int highest;
};
constexpr int kMost = 2147483647;
constexpr NumberKey kNumberKeys[] = {
    {Key::kRateControl, &EncodeOptions::rateControl, 0, NLERate_Profile},
    {Key::kQuality, &EncodeOptions::quality, 0, 51},
    {Key::kVideoBitRate, &EncodeOptions::videoBitRate, 0, kMost},
    {Key::kMaxBitRate, &EncodeOptions::maxBitRate, 0, kMost},
    {Key::kBufferSize, &EncodeOptions::bufferSize, 0, kMost},
    {Key::kGop, &EncodeOptions::gop, 0, 100000},
    {Key::kBFrames, &EncodeOptions::bFrames, 0, 16},
    {Key::kBitDepth, &EncodeOptions::bitDepth, 0, 16},
    {Key::kAlpha, &EncodeOptions::alpha, 0, 1},
    {Key::kFieldOrder, &EncodeOptions::fieldOrder, 0, NLEField_BottomFirst},
    {Key::kAudioBitRate, &EncodeOptions::audioBitRate, 0, kMost},
    {Key::kThreads, &EncodeOptions::threads, 0, 64},
    {Key::kProxies, &EncodeOptions::proxies, 0, 1},
    {Key::kFirstFrame, &EncodeOptions::firstFrame, 0, 1},
};

/// Copies as much of \a text as there is room for.
template <std::size_t Size>
void Put(const std::string& text, char (&buffer)[Size])
{
    const std::size_t length = std::min(text.size(), Size - 1);
    std::copy_n(text.begin(), length, buffer);
    buffer[length] = 0;
}

std::string Joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ",") + name;
    return text;
}

bool IsCodecSomewhere(NLEStreamType type, const std::string& name)
{
    return name.empty() || name == kNoCodec ||
           std::any_of(Containers().begin(), Containers().end(),
                       [&](const ContainerFormat& container) {
                           return container.Codec(type, name) != nullptr;
                       });
}

bool IsKnown(const EncodeOptions& options)
{
    if (options.container.empty())
        return IsCodecSomewhere(NLEStream_Video, options.videoCodec) &&
               IsCodecSomewhere(NLEStream_Audio, options.audioCodec);
    const ContainerFormat* container = FindContainer(options.container);
    return container && ComplaintAbout(options, *container).isEmpty();
}

/// False for a value out of its range.
bool ReadNumbers(INLEProperties* bag, EncodeOptions* options)
{
    for (const NumberKey& entry : kNumberKeys) {
        int value = 0;
        if (bag->GetInt(entry.key, &value) != S_OK)
            continue;
        if (value < entry.lowest || value > entry.highest)
            return false;
        options->*entry.field = value;
    }
    const int control = options->rateControl;
    return (control & (control - 1)) == 0; // one of them, or none
}

const CodecFormat* CodecAt(const char* container, int type, int index)
{
    const ContainerFormat* format = container ? FindContainer(container) : nullptr;
    if (!format || (type != NLEStream_Video && type != NLEStream_Audio))
        return nullptr;
    const auto codecs = format->Codecs(NLEStreamType(type));
    return index >= 0 && index < int(codecs.size()) ? codecs[std::size_t(index)] : nullptr;
}

void Describe(const ContainerFormat& container, const CodecFormat& codec, NLECodecInfo* info)
{
    *info = {};
    Put(codec.name, info->name);
    Put(codec.title, info->title);
    info->type = codec.type;
    info->rateControls = codec.rateControls;
    info->hasFields = codec.hasFields ? 1 : 0;
    Put(codec.profiles, info->profiles);
    Put(codec.speeds, info->speeds);
    Put(codec.pixelFormats, info->pixelFormats);
    for (const std::string& format : SplitNames(codec.pixelFormats)) {
        info->hasAlpha = info->hasAlpha != 0 || HasAlpha(format) ? 1 : 0;
        info->highestDepth = std::max(info->highestDepth, DepthOf(format));
    }
    const std::vector<std::string> sounds = container.SampleFormats(codec);
    Put(Joined(sounds), info->sampleFormats);
    for (const std::string& format : sounds)
        info->highestDepth = std::max(info->highestDepth, format == "s16"   ? 16
                                                          : format == "s24" ? 24
                                                                            : 32);
}

WriterSettings SettingsFor(const EncodeOptions& options, const NLEEncodeSettings& wanted)
{
    const auto orDefault = [](int value, int preset) { return value > 0 ? value : preset; };
    WriterSettings settings;
    settings.size = QSize(orDefault(wanted.frameSize.width, 1920) & ~1,
                          orDefault(wanted.frameSize.height, 1080) & ~1);
    settings.frameRate = IsRate(wanted.frameRate) ? wanted.frameRate : NLERational{25, 1};
    settings.quality = orDefault(wanted.quality, orDefault(options.quality, settings.quality));
    settings.hasSound = true;
    settings.sampleRate = orDefault(wanted.sampleRate, settings.sampleRate);
    settings.channels = orDefault(wanted.channels, settings.channels);
    settings.audioBitRate =
        orDefault(wanted.audioBitRate, orDefault(options.audioBitRate, settings.audioBitRate));
    settings.options = options;
    return settings;
}

/// Why a short film cannot be written so; without words when it can.
WriterError TryOut(const EncodeOptions& options, const NLEEncodeSettings& wanted)
{
    const ContainerFormat* container = FindContainer(options.container);
    if (!container)
        return {NLEReason_NoContainer, QStringLiteral("no container")};
    const std::string suffix = SplitNames(container->suffixes).front();
    const QString name = QLatin1String(container->isSequence ? "check_%04d." : "check.") +
                         QString::fromStdString(suffix);
    WriterSettings settings = SettingsFor(options, wanted);
    WriterError error;
    const bool isWritten = MediaWriter::Try(QDir::temp().filePath(name), settings, &error);
    return isWritten ? WriterError() : error;
}

/// What \a give makes of the row at \a index.
template <typename Row, typename Give>
HRESULT WithRow(const std::vector<Row>& rows, int index, Give give)
{
    return ComGuard([&] {
        return index >= 0 && index < int(rows.size())
                   ? give(rows[std::size_t(index)])
                   : RefuseIndex(index, std::int64_t(rows.size()));
    });
}

} // namespace

HRESULT ReadOptions(INLEProperties* bag, EncodeOptions* options)
{
    EncodeOptions read;
    for (const TextKey& entry : kTextKeys) {
        wchar_t text[kNameLength] = L"";
        if (bag->GetString(entry.key, text, kNameLength) == S_OK)
            read.*entry.field = FromWide(text).toStdString();
    }
    if (!ReadNumbers(bag, &read) || !IsKnown(read))
        return Refuse(E_INVALIDARG, NLEReason_SettingsRefused, kNotInCatalogue);
    *options = std::move(read);
    return S_OK;
}

HRESULT WriteOptions(const EncodeOptions& options, INLEProperties* bag)
{
    const EncodeOptions unset;
    HRESULT result = S_OK;
    for (const TextKey& entry : kTextKeys) {
        const std::string& text = options.*entry.field;
        if (SUCCEEDED(result) && !text.empty())
            result = bag->SetString(entry.key, QString::fromStdString(text).toStdWString().c_str());
    }
    for (const NumberKey& entry : kNumberKeys) {
        const int value = options.*entry.field;
        if (SUCCEEDED(result) && value != unset.*entry.field)
            result = bag->SetInt(entry.key, value);
    }
    return result;
}

HRESULT EncodeCatalog::GetContainerCount(int* count)
{
    return ComGuard([&] { return GiveValue(count, int(Containers().size())); });
}

HRESULT EncodeCatalog::GetContainer(int index, NLEContainerInfo* info)
{
    return WithRow(Containers(), index, [=](const ContainerFormat& container) {
        if (!info)
            return Refuse(E_POINTER);
        *info = {};
        Put(container.name, info->name);
        Put(container.title, info->title);
        Put(container.suffixes, info->suffixes);
        info->files = container.isSequence ? 0 : 1;
        return S_OK;
    });
}

HRESULT EncodeCatalog::GetCodecCount(const char* container, int type, int* count)
{
    return ComGuard([&] {
        int found = 0;
        while (CodecAt(container, type, found))
            ++found;
        return container && FindContainer(container)
                   ? GiveValue(count, found)
                   : Refuse(E_INVALIDARG, NLEReason_UnknownName, QLatin1String(container));
    });
}

HRESULT EncodeCatalog::GetCodec(const char* container, int type, int index, NLECodecInfo* info)
{
    return ComGuard([&] {
        const CodecFormat* codec = CodecAt(container, type, index);
        if (!info)
            return Refuse(E_POINTER);
        if (!codec)
            return Refuse(E_INVALIDARG, NLEReason_UnknownIndex, QString::number(index));
        Describe(*FindContainer(container), *codec, info);
        return S_OK;
    });
}

HRESULT EncodeCatalog::GetPresetCount(int* count)
{
    return ComGuard([&] { return GiveValue(count, int(EncodePresets().size())); });
}

HRESULT EncodeCatalog::GetPresetName(int index, wchar_t* buffer, int capacity)
{
    return WithRow(EncodePresets(), index, [=](const EncodePreset& preset) {
        return CopyText(QString::fromLatin1(preset.name).toStdWString(), buffer, capacity);
    });
}

HRESULT EncodeCatalog::GetPreset(const wchar_t* name, INLEProperties* options)
{
    return ComGuard([&] {
        if (!name || !options)
            return Refuse(E_POINTER);
        const QString wanted = FromWide(name);
        for (const EncodePreset& preset : EncodePresets()) {
            if (wanted == QLatin1String(preset.name))
                return WriteOptions(preset.options, options);
        }
        return Refuse(E_INVALIDARG, NLEReason_UnknownName, wanted);
    });
}

HRESULT EncodeCatalog::Check(INLEProperties* options, const NLEEncodeSettings* settings,
                             wchar_t* reason, int capacity)
{
    return ComGuard([&] {
        if (!options)
            return Refuse(E_POINTER);
        EncodeOptions wanted;
        WriterError error;
        if (ReadOptions(options, &wanted) == S_OK)
            error = TryOut(wanted, settings ? *settings : NLEEncodeSettings{});
        else
            error = {NLEReason_SettingsRefused, kNotInCatalogue};
        if (reason && capacity > 0)
            CopyText(error.text.toStdWString(), reason, capacity);
        if (error.reason == NLEReason_None)
            return S_OK;
        return Refuse(E_INVALIDARG, error.reason, error.text);
    });
}

HRESULT EncodeCatalog::GetContainerTitle(int index, wchar_t* title, int capacity)
{
    return WithRow(Containers(), index, [=](const ContainerFormat& container) {
        return GiveTitle(container.title, title, capacity);
    });
}

HRESULT EncodeCatalog::GetCodecTitle(const char* container, int type, int index, wchar_t* title,
                                     int capacity)
{
    return ComGuard([&] {
        const CodecFormat* codec = CodecAt(container, type, index);
        return codec ? GiveTitle(codec->title, title, capacity)
                     : Refuse(E_INVALIDARG, NLEReason_UnknownIndex, QString::number(index));
    });
}

HRESULT EncodeCatalog::GetPresetTitle(int index, wchar_t* title, int capacity)
{
    return WithRow(EncodePresets(), index, [=](const EncodePreset& preset) {
        return GiveTitle(preset.name, title, capacity);
    });
}

} // namespace nle
