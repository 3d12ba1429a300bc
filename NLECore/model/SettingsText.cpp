// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SettingsText.h"

#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/scene/FrameMath.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace nle {

using namespace document;

namespace {

QString Join(std::initializer_list<double> numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts << QString::number(number, 'g', 17);
    return texts.join(QLatin1Char(' '));
}

/// The numbers of a text; empty when there are not \a count of them.
std::vector<double> Split(const QString& text, int count)
{
    const QStringList parts = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<double> numbers;
    bool ok = parts.size() == count;
    for (int i = 0; ok && i < count; ++i)
        numbers.push_back(parts[i].toDouble(&ok));
    return ok ? numbers : std::vector<double>();
}

QString CurveText(const std::vector<VolumePoint>& points)
{
    QStringList texts;
    for (const VolumePoint& point : points)
        texts << Join({point.time, point.gain});
    return texts.join(QLatin1Char(';'));
}

void ReadCurve(const QString& text, AudioFacet& audio)
{
    NLEComPtr<INLEKeyFrameParam> curve;
    audio.GetVolumeKeyFrameParam(curve.put());
    for (const QString& point : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const std::vector<double> numbers = Split(point, 2);
        if (!numbers.empty())
            curve->SetPoint(numbers[0], numbers[1]);
    }
}

QString KeyFrameText(const KeyFrameFacet& keyFrames)
{
    const auto curve = keyFrames.Stored();
    if (curve->frames.empty() && keyFrames.enabled)
        return {};
    QStringList texts = {Join({double(keyFrames.enabled), curve->axis.start, curve->axis.length})};
    for (const NLEKeyFrameRecord& f : curve->frames)
        texts << Join({f.time, f.angle, f.positionX, f.positionY, f.scaleWidth, f.scaleHeight,
                       f.opacity, double(f.interpolation)});
    return texts.join(QLatin1Char(';'));
}

void ReadKeyFrames(const QString& text, KeyFrameFacet& keyFrames)
{
    const QStringList parts = text.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    const std::vector<double> head = Split(parts.value(0), 3);
    if (head.empty())
        return;
    KeyFrameCurve curve;
    if (std::isfinite(head[1]) && std::isfinite(head[2]))
        curve.axis = {head[1], head[2]};
    for (int i = 1; i < parts.size(); ++i) {
        const std::vector<double> f = Split(parts[i], 8);
        if (!f.empty())
            curve.frames.push_back({f[0], f[1], f[2], f[3], f[4], f[5], f[6], ClampToInt(f[7])});
    }
    keyFrames.enabled = head[0] != 0;
    keyFrames.Restore(curve);
}

void ReadPicture(const QHash<QString, QString>& properties, TimelineNode& node)
{
    const std::vector<double> blend = Split(properties.value(kBlend), 3);
    if (!blend.empty()) {
        node.Blend().SetEnable(blend[0] != 0);
        node.Blend().SetMode(ClampToInt(blend[1]));
        node.Blend().SetAlpha(ClampToInt(blend[2]));
    }
    const std::vector<double> transform = Split(properties.value(kTransform), 7);
    if (!transform.empty()) {
        const NLEPointF center = {transform[1], transform[2]};
        const NLESizeF scale = {transform[3], transform[4]};
        node.Transform().SetEnable(transform[0] != 0);
        node.Transform().SetCenter(&center);
        node.Transform().SetScale(&scale);
        node.Transform().SetRotation(transform[5]);
        node.Transform().SetLock(transform[6] != 0);
    }
    ReadKeyFrames(properties.value(kKeyFrames), node.KeyFrames());
}

void ReadSound(const QHash<QString, QString>& properties, AudioFacet& audio)
{
    const std::vector<double> levels = Split(properties.value(kSoundLevels), 4);
    if (!levels.empty()) {
        audio.SetVolumeEnable(levels[0] != 0);
        audio.SetVolume(levels[1]);
        audio.SetMute(levels[2] != 0);
        audio.SetBalance(levels[3]);
    }
    const std::vector<double> fades = Split(properties.value(kSoundFades), 4);
    if (!fades.empty()) {
        audio.SetFadeInEnable(fades[0] != 0);
        audio.SetFadeInRange(ClampToInt(fades[1]));
        audio.SetFadeOutEnable(fades[2] != 0);
        audio.SetFadeOutRange(ClampToInt(fades[3]));
    }
    const std::vector<double> effects = Split(properties.value(kSoundEffects), 5);
    if (!effects.empty()) {
        audio.SetPitch(ClampToInt(effects[0]));
        audio.SetDenoiseEnable(effects[1] != 0);
        audio.SetDenoiseLevel(ClampToInt(effects[2]));
        audio.SetMixToMonoEnable(effects[3] != 0);
        audio.SetEqualizerEnable(effects[4] != 0);
    }
    const std::vector<double> gains =
        Split(properties.value(kSoundEqualizer), int(kEqualizerBands.size()));
    if (!gains.empty())
        audio.SetEqualizerParam(gains.data());
    audio.SetEqualizerName(ToWide(properties.value(kSoundEqualizerName)).c_str());
    ReadCurve(properties.value(kSoundCurve), audio);
}

void ReadSource(const QHash<QString, QString>& properties,
                const std::function<std::shared_ptr<const MediaInfo>(const QString&)>& media,
                VideoFacet& video)
{
    const QByteArray record = QByteArray::fromBase64(properties.value(kAlphaChannel).toLatin1());
    if (record.size() == int(sizeof(NLEAlphaChannelRecord))) {
        NLEAlphaChannelRecord alpha;
        std::memcpy(&alpha, record.constData(), sizeof(alpha));
        video.SetAlphaChannel(&alpha);
    }
    const QString proxy = properties.value(kProxy);
    // A proxy that is gone is only a proxy: the clip plays its own media until it comes back.
    if (!proxy.isEmpty())
        video.settings.proxy = media(proxy);
    video.SetProxyEnabled(properties.value(kProxyEnabled).toInt() != 0);
    video.SetPremultipliedAlphaType(properties.value(kPremultiplied).toInt());
}

/// Whether XML gives a character back as it is, and nothing of ours begins with it. Line feed and
/// tab survive; a carriage return would come back as a line feed.
bool IsPlain(ushort code)
{
    const bool isControl = code < 0x20 && code != '\n' && code != '\t';
    return !isControl && code != '%' && code < 0xFFFE && !QChar::isSurrogate(code);
}

/// Whether one character beyond the basic plane stands at \a index.
bool IsPairAt(const QString& text, int index)
{
    return index + 1 < text.size() && text.at(index).isHighSurrogate() &&
           text.at(index + 1).isLowSurrogate();
}

} // namespace

QString EncodeText(const QString& text)
{
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return IsPlain(c.unicode()); }))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const ushort code = text.at(i).unicode();
        if (IsPlain(code))
            result += text.at(i);
        else if (IsPairAt(text, i))
            result += text.mid(i++, 2);
        else if (code < 0x80)
            result += QStringLiteral("%%1").arg(code, 2, 16, QLatin1Char('0'));
        else
            result += QStringLiteral("%u%1").arg(code, 4, 16, QLatin1Char('0'));
    }
    return result;
}

QString DecodeText(const QString& text)
{
    if (!text.contains(QLatin1Char('%')))
        return text;
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        const bool isMark = text.at(i) == QLatin1Char('%');
        const bool isLong = isMark && text.mid(i + 1, 1) == QLatin1String("u");
        const int skipped = isLong ? 5 : 2;
        bool ok = false;
        const ushort code =
            isMark ? text.mid(i + (isLong ? 2 : 1), isLong ? 4 : 2).toUShort(&ok, 16) : 0;
        const bool isOurs = ok && !IsPlain(code) && isLong == (code >= 0x80);
        result += isOurs ? QChar(code) : text.at(i);
        i += isOurs ? skipped : 0;
    }
    return result;
}

QString PlainText(const QString& text)
{
    QString result = text;
    result.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    result.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    for (int i = 0; i < result.size(); ++i) {
        if (IsPairAt(result, i))
            ++i;
        else if (result.at(i) != QLatin1Char('%') && !IsPlain(result.at(i).unicode()))
            result[i] = QChar(QChar::ReplacementCharacter);
    }
    return result;
}

std::wstring ToWide(const QString& text)
{
    std::wstring result;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair = sizeof(wchar_t) > sizeof(ushort) && IsPairAt(text, i);
        result += isPair ? wchar_t(QChar::surrogateToUcs4(text.at(i), text.at(i + 1)))
                         : wchar_t(text.at(i).unicode());
        i += isPair ? 1 : 0;
    }
    return result;
}

QString FromWide(const std::wstring& text)
{
    QString result;
    for (const wchar_t character : text) {
        const auto code = std::uint32_t(character);
        if (QChar::requiresSurrogates(code))
            result += QChar(QChar::highSurrogate(code));
        result += QChar::requiresSurrogates(code) ? QChar(QChar::lowSurrogate(code))
                                                  : QChar(ushort(code));
    }
    return result;
}

QString DocumentPath(const QString& path, const QDir& folder)
{
    QString absolute = QFileInfo(path).absoluteFilePath();
    const QString relative = folder.relativeFilePath(absolute);
    if (relative == QLatin1String("..") || relative.startsWith(QLatin1String("../")))
        return absolute;
    // A name that begins with a colon would be taken for one of the toolkit's resources.
    return relative.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + relative : relative;
}

std::vector<std::pair<QString, QString>> SettingsToText(const TimelineNode& node,
                                                        const QDir& folder)
{
    std::vector<std::pair<QString, QString>> texts;
    const AudioSettings& sound = node.Audio().settings;
    static const AudioSettings preset;
    const VideoSettings& video = node.Video().settings;
    const BlendSettings& blend = node.Blend().settings;
    const TransformSettings& transform = node.Transform().settings;
    // Presets are left out: a document of ten thousand plain clips stays small.
    const auto add = [&texts](QLatin1String name, const QString& text, const QString& plain) {
        if (text != plain)
            texts.emplace_back(name, text);
    };
    const auto blendText = [](const BlendSettings& b) {
        return Join({double(b.enabled), double(b.mode), double(b.alpha)});
    };
    const auto transformText = [](const TransformSettings& t) {
        return Join({double(t.enabled), t.center.x, t.center.y, t.scale.width, t.scale.height,
                     t.rotation, double(t.lock)});
    };
    const auto levels = [](const AudioSettings& a) {
        return Join({double(a.volumeEnabled), a.volume, double(a.mute), a.balance});
    };
    const auto fades = [](const AudioSettings& a) {
        return Join(
            {double(a.fadeIn), double(a.fadeInFrames), double(a.fadeOut), double(a.fadeOutFrames)});
    };
    const auto effects = [](const AudioSettings& a) {
        return Join({double(a.pitch), double(a.denoise), double(a.denoiseLevel), double(a.mono),
                     double(a.equalizer)});
    };
    const auto gains = [](const AudioSettings& a) {
        QStringList numbers;
        for (const double gain : a.equalizerGains)
            numbers << Join({gain});
        return numbers.join(QLatin1Char(' '));
    };
    static const QString plainBlend = blendText(BlendSettings());
    static const QString plainTransform = transformText(TransformSettings());
    static const QString plainLevels = levels(preset);
    static const QString plainFades = fades(preset);
    static const QString plainEffects = effects(preset);
    static const QString plainGains = gains(preset);
    add(kBlend, blendText(blend), plainBlend);
    add(kTransform, transformText(transform), plainTransform);
    add(kKeyFrames, KeyFrameText(node.KeyFrames()), QString());
    add(kSoundLevels, levels(sound), plainLevels);
    add(kSoundFades, fades(sound), plainFades);
    add(kSoundEffects, effects(sound), plainEffects);
    add(kSoundEqualizer, gains(sound), plainGains);
    add(kSoundEqualizerName, FromWide(sound.equalizerName), QString());
    add(kSoundCurve, CurveText(sound.volumePoints), QString());
    if (video.alphaChannel)
        texts.emplace_back(
            kAlphaChannel,
            QString::fromLatin1(QByteArray(reinterpret_cast<const char*>(video.alphaChannel.get()),
                                           sizeof(NLEAlphaChannelRecord))
                                    .toBase64()));
    if (video.proxy)
        texts.emplace_back(kProxy, DocumentPath(video.proxy->path, folder));
    add(kProxyEnabled, QString::number(video.proxyEnabled), QStringLiteral("0"));
    add(kPremultiplied, QString::number(video.premultipliedType), QStringLiteral("0"));
    for (const auto& [level, strip] : node.Mixer().settings)
        texts.emplace_back(
            kMixerPrefix + QString::number(level),
            Join({strip.volume, strip.balance, double(strip.mute), double(strip.solo)}));
    return texts;
}

void SettingsFromText(const QHash<QString, QString>& properties,
                      const std::function<std::shared_ptr<const MediaInfo>(const QString&)>& media,
                      TimelineNode& node)
{
    ReadPicture(properties, node);
    ReadSound(properties, node.Audio());
    ReadSource(properties, media, node.Video());
    for (auto property = properties.begin(); property != properties.end(); ++property) {
        if (!property.key().startsWith(kMixerPrefix))
            continue;
        const std::vector<double> strip = Split(property.value(), 4);
        if (strip.empty())
            continue;
        const tagMixerParam param = {strip[0], strip[1], ClampToInt(strip[2]),
                                     ClampToInt(strip[3])};
        node.Mixer().SetParam(property.key().mid(kMixerPrefix.size()).toInt(), &param);
    }
}

} // namespace nle
