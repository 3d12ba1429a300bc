// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/SettingsText.h"

#include "NLECore/model/DocumentFormat.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/scene/FrameMath.h"

#include <QFileInfo>

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
    audio.SetEqualizerName(properties.value(kSoundEqualizerName).toStdWString().c_str());
    ReadCurve(properties.value(kSoundCurve), audio);
}

void ReadSource(const QHash<QString, QString>& properties, const QDir& folder, VideoFacet& video)
{
    const QByteArray record = QByteArray::fromBase64(properties.value(kAlphaChannel).toLatin1());
    if (record.size() == int(sizeof(NLEAlphaChannelRecord))) {
        NLEAlphaChannelRecord alpha;
        std::memcpy(&alpha, record.constData(), sizeof(alpha));
        video.SetAlphaChannel(&alpha);
    }
    const QString proxy = properties.value(kProxy);
    // A proxy that is gone is only a proxy: the clip plays its own media until it comes back.
    const QString path = QDir::cleanPath(folder.absoluteFilePath(proxy));
    if (!proxy.isEmpty() && FAILED(video.SetProxyFile(path.toStdWString().c_str())))
        video.settings.proxy = OfflineMedia(path);
    video.SetProxyEnabled(properties.value(kProxyEnabled).toInt() != 0);
    video.SetPremultipliedAlphaType(properties.value(kPremultiplied).toInt());
}

} // namespace

QString EncodeText(const QString& text)
{
    QString result;
    for (const QChar character : text) {
        const ushort code = character.unicode();
        // Line feed and tab survive; a carriage return would come back as a line feed.
        const bool isPlain = code >= 0x20 || code == '\n' || code == '\t';
        if (isPlain && code != '%' && code < 0xFFFE)
            result += character;
        else if (code >= 0xFFFE)
            result += QChar(QChar::ReplacementCharacter);
        else
            result += QStringLiteral("%%1").arg(code, 2, 16, QLatin1Char('0'));
    }
    return result;
}

QString DecodeText(const QString& text)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        bool ok = false;
        const ushort code =
            text.at(i) == QLatin1Char('%') ? text.mid(i + 1, 2).toUShort(&ok, 16) : 0;
        const bool isOurs = ok && (code < 0x20 || code == '%');
        result += isOurs ? QChar(code) : text.at(i);
        i += isOurs ? 2 : 0;
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
    const AudioSettings preset;
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
    add(kBlend, blendText(blend), blendText(BlendSettings()));
    add(kTransform, transformText(transform), transformText(TransformSettings()));
    add(kKeyFrames, KeyFrameText(node.KeyFrames()), QString());
    add(kSoundLevels, levels(sound), levels(preset));
    add(kSoundFades, fades(sound), fades(preset));
    add(kSoundEffects, effects(sound), effects(preset));
    add(kSoundEqualizer, gains(sound), gains(preset));
    add(kSoundEqualizerName, QString::fromStdWString(sound.equalizerName), QString());
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

void SettingsFromText(const QHash<QString, QString>& properties, const QDir& folder,
                      TimelineNode& node)
{
    ReadPicture(properties, node);
    ReadSound(properties, node.Audio());
    ReadSource(properties, folder, node.Video());
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
