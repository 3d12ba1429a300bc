// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/MltEffects.h"

#include "NLECore/render/Composer.h"
#include "NLECore/scene/FrameMath.h"

#include <QRegularExpression>

#include <array>

namespace nle {

namespace {

/// Numbers of the modes in the framework's transitions, in the order of BlendMode.
constexpr std::array<int, kBlendModes> kCompositing = {0,  13, 14, 15, 16, 17, 12,
                                                       22, 18, 19, 20, 21, 23};
/// Key frames that are taken of one property.
constexpr int kMostKeys = 20000;
/// Points that stand for a ramp in decibels, at most.
constexpr int kMostPoints = 2000;

QString Text(const MltEffect& effect, const char* name)
{
    return effect.properties.value(QLatin1String(name));
}

double Number(const MltEffect& effect, const char* name, double preset)
{
    return MltNumber(Text(effect, name), preset);
}

bool Has(const MltEffect& effect, const char* name)
{
    return !Text(effect, name).isEmpty();
}

/// The curve at \a time, linear between its key frames.
NLEKeyFrameRecord At(const std::map<double, NLEKeyFrameRecord>& keys, double time)
{
    const auto after = keys.lower_bound(time);
    const NLEKeyFrameRecord* next = after == keys.end() ? nullptr : &after->second;
    const NLEKeyFrameRecord* previous = after == keys.begin() ? nullptr : &std::prev(after)->second;
    return Interpolate(previous, next, time);
}

double FromDecibel(double level)
{
    constexpr double decade = 20;
    return std::pow(10, level / decade);
}

} // namespace

std::vector<MltKey> MltKeys(const QString& text, const NLERational& rate, std::int64_t length)
{
    // A letter or sign before "=" names the way to the next key frame.
    static const QRegularExpression keyPattern(
        QStringLiteral("^\\s*(-?[0-9:.,]+)\\s*([^0-9=]?)=(.*)$"));
    std::vector<MltKey> keys;
    for (const QString& part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = keyPattern.match(part);
        if (int(keys.size()) >= kMostKeys)
            break;
        if (!match.hasMatch()) {
            keys.push_back({0, part.trimmed()});
            continue;
        }
        const std::int64_t time = MltFrames(match.captured(1), rate, 0);
        const bool holds = !keys.empty() && keys.back().value.startsWith(QLatin1Char('|'));
        const double frame = double(time < 0 ? length + time : time);
        if (holds) {
            const QString held = keys.back().value.mid(1);
            keys.back().value = held;
            if (frame - 1 > keys.back().frame)
                keys.push_back({frame - 1, held});
        }
        const bool isHold =
            match.captured(2) == QLatin1String("|") || match.captured(2) == QLatin1String("!");
        keys.push_back({frame, (isHold ? QStringLiteral("|") : QString()) + match.captured(3)});
    }
    for (MltKey& key : keys) {
        if (key.value.startsWith(QLatin1Char('|')))
            key.value.remove(0, 1);
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const MltKey& a, const MltKey& b) { return a.frame < b.frame; });
    return keys;
}

double MltGain(const QString& text, double preset)
{
    const double number = MltNumber(text, -1);
    if (text.trimmed().endsWith(QLatin1String("dB"), Qt::CaseInsensitive))
        return FromDecibel(MltNumber(text, 0));
    return number < 0 ? preset : number;
}

std::optional<double> MltBalance(const MltEffect& effect)
{
    const QString split = Has(effect, "split") ? Text(effect, "split") : Text(effect, "start");
    const bool isStatic = !split.contains(QLatin1Char('=')) && !Has(effect, "end");
    if (!isStatic || Number(effect, "channel", -1) != -1)
        return std::nullopt;
    constexpr double middle = 0.5;
    return std::clamp(MltNumber(split, middle) / middle - 1, -1.0, 1.0);
}

std::optional<BlendMode> MltBlendMode(int compositing)
{
    const auto found = std::find(kCompositing.begin(), kCompositing.end(), compositing);
    if (found == kCompositing.end())
        return std::nullopt;
    return BlendMode(found - kCompositing.begin());
}

int MltCompositing(BlendMode mode)
{
    return kCompositing[size_t(mode)];
}

MltEffects::MltEffects(TimelineNode& node, NLESize canvas, const QString& name,
                       DocumentRemarks& remarks)
    : m_node(node), m_range(node.Range()), m_canvas(canvas), m_name(name), m_remarks(remarks)
{
}

bool MltEffects::IsSound(const MltEffect& effect)
{
    return effect.Service() == QLatin1String("volume") ||
           effect.Service() == QLatin1String("panner") || effect.Service() == QLatin1String("mono");
}

bool MltEffects::IsPicture(const MltEffect& effect)
{
    return effect.Service() == QLatin1String("affine") ||
           effect.Service() == QLatin1String("qtblend") ||
           effect.Service() == QLatin1String("brightness");
}

void MltEffects::Take(const std::vector<MltEffect>& effects)
{
    for (const MltEffect& effect : effects) {
        // Meters change nothing.
        const bool shows = effect.Service() == QLatin1String("audiolevel") ||
                           effect.Service() == QLatin1String("loudness_meter");
        if (!effect.IsOff() && !shows)
            TakeOne(effect);
    }
    Finish();
}

void MltEffects::TakeOne(const MltEffect& effect)
{
    const QString service = effect.Service();
    bool isTaken = false;
    if (service == QLatin1String("volume")) {
        isTaken = TakeVolume(effect);
    } else if (service == QLatin1String("panner")) {
        const std::optional<double> balance = MltBalance(effect);
        isTaken = balance && Covers(effect);
        if (isTaken)
            m_node.Audio().settings.balance = *balance;
    } else if (service == QLatin1String("mono")) {
        isTaken = Covers(effect);
        if (isTaken)
            m_node.Audio().settings.mono = true;
    } else if (service == QLatin1String("brightness")) {
        isTaken = TakeBrightness(effect);
    } else if (service == QLatin1String("affine") || service == QLatin1String("qtblend")) {
        isTaken = TakeRect(effect);
    }
    if (!isTaken)
        LeaveOut(effect);
}

void MltEffects::LeaveOut(const MltEffect& effect)
{
    if (!effect.IsOff())
        m_remarks.Add(NLERemark_Effect,
                      QStringLiteral("effect %1 of %2").arg(effect.Service(), m_name));
}

std::int64_t MltEffects::In(const MltEffect& effect) const
{
    return MltFrames(Text(effect, "in"), m_node.FrameRate(), 0);
}

std::int64_t MltEffects::Out(const MltEffect& effect) const
{
    // A filter without an end, or with one at 0 and no begin, is on all frames.
    const std::int64_t out = MltFrames(Text(effect, "out"), m_node.FrameRate(), 0);
    return out == 0 && In(effect) == 0 ? INT32_MAX : out;
}

bool MltEffects::Covers(const MltEffect& effect) const
{
    return In(effect) <= m_range.in && Out(effect) >= m_range.out;
}

// ---- Sound

bool MltEffects::TakeVolume(const MltEffect& effect)
{
    if (Has(effect, "level")) {
        TakeLevels(effect);
        return true;
    }
    const QString gain = Text(effect, "gain");
    if (Has(effect, "normalise") || gain.startsWith(QLatin1String("normali")))
        return false;
    const double start = MltGain(gain, 1);
    return TakeRamp(effect, start, MltGain(Text(effect, "end"), start));
}

bool MltEffects::TakeRamp(const MltEffect& effect, double start, double end)
{
    AudioSettings& sound = m_node.Audio().settings;
    const std::int64_t in = In(effect);
    const std::int64_t out = Out(effect);
    const int frames = ClampToInt(double(out - in + 1));
    if (start == end && Covers(effect)) {
        sound.volume *= start;
    } else if (start == 0 && end == 1 && in == m_range.in && !sound.fadeIn && Has(effect, "out")) {
        sound.fadeIn = true;
        sound.fadeInFrames = frames;
    } else if (start == 1 && end == 0 && out == m_range.out && !sound.fadeOut) {
        sound.fadeOut = true;
        sound.fadeOutFrames = frames;
    } else {
        const double last = std::min(double(out), double(m_range.out));
        AddCurve(effect, {{double(in), start}, {last, end}});
    }
    return true;
}

void MltEffects::TakeLevels(const MltEffect& effect)
{
    const auto in = double(In(effect));
    const std::int64_t length = std::min<std::int64_t>(Out(effect), m_range.out) + 1 - In(effect);
    const std::vector<MltKey> keys = MltKeys(Text(effect, "level"), m_node.FrameRate(), length);
    std::vector<Gain> gains;
    for (size_t i = 0; i < keys.size(); ++i) {
        const double level = MltNumber(keys[i].value, 0);
        // Decibels between two key frames are no straight line of gains.
        if (i > 0) {
            const double before = MltNumber(keys[i - 1].value, 0);
            const double distance = keys[i].frame - keys[i - 1].frame;
            const int steps =
                before == level ? 1 : ClampToInt(std::min<double>(distance, kMostPoints));
            for (int step = 1; step < steps; ++step) {
                const double share = double(step) / steps;
                gains.push_back({in + keys[i - 1].frame + distance * share,
                                 FromDecibel(before + (level - before) * share)});
            }
        }
        gains.push_back({in + keys[i].frame, FromDecibel(level)});
    }
    if (keys.size() == 1 && Covers(effect))
        m_node.Audio().settings.volume *= gains.front().gain;
    else if (!keys.empty())
        AddCurve(effect, gains);
}

void MltEffects::AddCurve(const MltEffect& effect, const std::vector<Gain>& gains)
{
    std::vector<VolumePoint> curve;
    const double fps = ToDouble(m_node.FrameRate());
    const auto put = [&](double frame, double gain) {
        PutVolumePoint(curve, {(frame - m_range.in) / fps, std::min(gain, kMostVolume)});
    };
    // Outside of its frames a filter changes nothing.
    if (In(effect) > m_range.in)
        put(double(In(effect)) - 1, 1);
    if (In(effect) > m_range.in && !gains.empty())
        put(double(In(effect)), gains.front().gain);
    for (const Gain& gain : gains)
        put(gain.frame, gain.gain);
    if (Out(effect) < m_range.out) {
        put(double(Out(effect)), GainAt(curve, (double(Out(effect)) - m_range.in) / fps));
        put(double(Out(effect)) + 1, 1);
    }
    m_curves.push_back(std::move(curve));
}

void MltEffects::FinishSound()
{
    AudioSettings& sound = m_node.Audio().settings;
    std::vector<VolumePoint> product;
    for (const std::vector<VolumePoint>& curve : m_curves) {
        for (const VolumePoint& point : curve)
            PutVolumePoint(product, {point.time, 1});
    }
    for (VolumePoint& point : product) {
        for (const std::vector<VolumePoint>& curve : m_curves)
            point.gain = std::min(point.gain * GainAt(curve, point.time), kMostVolume);
    }
    if (!product.empty())
        sound.volumePoints = product;
    if (sound.volume > kMostVolume)
        m_remarks.Add(NLERemark_Level, QStringLiteral("volume of %1").arg(m_name));
    sound.volume = std::min(sound.volume, kMostVolume);
}

// ---- Pictures

bool MltEffects::TakeBrightness(const MltEffect& effect)
{
    const bool isPlain = !Has(effect, "level") || MltNumber(Text(effect, "level"), 1) == 1;
    const QString level = Text(effect, "level");
    if (!Has(effect, "alpha") || !isPlain || level.contains(QLatin1Char('=')) || !Covers(effect))
        return false;
    const std::int64_t in = In(effect);
    const std::vector<MltKey> keys =
        MltKeys(Text(effect, "alpha"), m_node.FrameRate(), m_range.out + 1 - in);
    if (keys.size() == 1) {
        const double alpha = std::clamp(MltNumber(keys.front().value, 1), 0.0, 1.0);
        m_node.Blend().settings.alpha = int(std::lround(alpha * kOpaqueAlpha));
        return true;
    }
    for (const MltKey& key : keys) {
        NLEKeyFrameRecord& record =
            m_opacity.try_emplace(double(in) + key.frame, kPlainKeyFrame).first->second;
        record.time = double(in) + key.frame;
        record.opacity = std::clamp(MltNumber(key.value, 1), 0.0, 1.0);
    }
    return true;
}

MltEffects::Rect MltEffects::ParseRect(const QString& text, double fullOpacity) const
{
    static const QRegularExpression numberPattern(QStringLiteral("(-?[0-9.]+(?:e-?[0-9]+)?)(%?)"));
    constexpr double percent = 100;
    std::array<double, 5> values = {0, 0, double(m_canvas.width), double(m_canvas.height),
                                    fullOpacity};
    auto numbers = numberPattern.globalMatch(text);
    for (size_t i = 0; i < values.size() && numbers.hasNext(); ++i) {
        const QRegularExpressionMatch match = numbers.next();
        const double number = MltNumber(match.captured(1), 0);
        const double whole = i == 4 ? fullOpacity : i % 2 ? m_canvas.height : m_canvas.width;
        values[i] = match.captured(2).isEmpty() ? number : number / percent * whole;
    }
    return {values[0], values[1], values[2], values[3],
            std::clamp(values[4] / fullOpacity, 0.0, 1.0)};
}

NLEKeyFrameRecord MltEffects::MotionAt(const Rect& rect, double rotation, bool distorts) const
{
    NLEKeyFrameRecord record = kPlainKeyFrame;
    const NLESize own = m_node.PictureSize();
    const NLESize size = own.width > 0 && own.height > 0 ? own : m_canvas;
    const QSize canvas(m_canvas.width, m_canvas.height);
    const QRectF plain = PlacePicture(size, m_node.Placement().margin, m_canvas, canvas);
    const double fitWidth = rect.width / plain.width();
    const double fitHeight = rect.height / plain.height();
    const double fit = std::min(fitWidth, fitHeight);
    record.scaleWidth = distorts ? fitWidth : fit;
    record.scaleHeight = distorts ? fitHeight : fit;
    constexpr double middle = 0.5;
    record.positionX = (rect.x + rect.width * middle) / m_canvas.width - middle;
    record.positionY = middle - (rect.y + rect.height * middle) / m_canvas.height;
    record.angle = rotation;
    record.opacity = rect.opacity;
    return record;
}

bool MltEffects::TakeRect(const MltEffect& effect)
{
    const bool isAffine = effect.Service() == QLatin1String("affine");
    const QString prefix = isAffine ? QStringLiteral("transition.") : QString();
    const auto text = [&](const char* name) {
        return effect.properties.value(prefix + QLatin1String(name));
    };
    const bool isOld = isAffine && text("rect").isEmpty();
    const QString rects = isOld ? text("geometry") : text("rect");
    const QString turns = isAffine ? text("fix_rotate_x") : text("rotation");
    const bool isTurned = MltNumber(turns, 0) != 0 || turns.contains(QLatin1Char('='));
    // Around a corner, sheared or in another mode is nothing that a transform can do.
    const bool isOther = MltNumber(text("compositing"), 0) != 0 || !text("rotate_x").isEmpty() ||
                         (isTurned && !isAffine && MltNumber(text("rotate_center"), 0) == 0);
    if (rects.isEmpty() || isOther || !Covers(effect) || m_canvas.width < 1 || m_canvas.height < 1)
        return false;
    constexpr double oldOpacity = 100;
    const bool distorts = MltNumber(text("distort"), 0) != 0;
    const std::int64_t in = In(effect);
    const std::int64_t length = m_range.out + 1 - in;
    const NLERational rate = m_node.FrameRate();
    std::map<double, NLEKeyFrameRecord> angles;
    for (const MltKey& key : MltKeys(turns, rate, length)) {
        NLEKeyFrameRecord record = kPlainKeyFrame;
        record.time = double(in) + key.frame;
        record.angle = MltNumber(key.value, 0);
        angles[record.time] = record;
    }
    for (const MltKey& key : MltKeys(rects, rate, length)) {
        const double frame = double(in) + key.frame;
        const Rect rect = ParseRect(key.value, isOld ? oldOpacity : 1);
        NLEKeyFrameRecord record = MotionAt(rect, At(angles, frame).angle, distorts);
        record.time = frame;
        m_motion[frame] = record;
    }
    for (const auto& [frame, angle] : angles) {
        NLEKeyFrameRecord record = At(m_motion, frame);
        record.time = frame;
        record.angle = angle.angle;
        m_motion[frame] = record;
    }
    return true;
}

void MltEffects::FinishPicture()
{
    std::map<double, NLEKeyFrameRecord> frames = m_motion;
    for (const auto& opacity : m_opacity)
        frames.insert(opacity);
    const KeyFrameAxis axis = KeyFrameAxis::Of(m_range);
    KeyFrameCurve curve = {axis, {}};
    for (const auto& [frame, unused] : frames) {
        NLEKeyFrameRecord record = At(m_motion, frame);
        record.opacity *= At(m_opacity, frame).opacity;
        record.time = axis.TimeOf(frame);
        curve.frames.push_back(record);
    }
    if (curve.frames.size() == 1 && curve.frames.front().opacity == 1) {
        // What stays where it is needs no key frame.
        const NLEKeyFrameRecord& only = curve.frames.front();
        constexpr double middle = 0.5;
        TransformSettings& transform = m_node.Transform().settings;
        transform.center = {middle + only.positionX, middle - only.positionY};
        transform.scale = {only.scaleWidth, only.scaleHeight};
        transform.rotation = only.angle;
    } else if (!curve.frames.empty()) {
        m_node.KeyFrames().Restore(curve);
    }
}

void MltEffects::Finish()
{
    FinishSound();
    FinishPicture();
}

} // namespace nle
