// SPDX-License-Identifier: LGPL-2.1-or-later
// Parts of the open engine that have no interface: frame arithmetic, what follows from the lists of
// fields, and who gets room in the preview cache.
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/MltReader.h"
#include "NLECore/model/MltWriter.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/render/ChunkStore.h"
#include "NLECore/scene/FrameMath.h"
#include "NLECore/scene/LayerKey.h"
#include "NLECore/scene/Title.h"

#include <QTemporaryDir>
#include <QtTest>

#include <functional>

using namespace nle;

namespace {

using NodePointer = NLEComPtr<TimelineNode>;
using UseOfRoom = std::function<void(ChunkStore&, ChunkStore::Reservation&)>;

// ---- Another value that a field accepts

NLEPointF Other(NLEPointF value)
{
    return {value.x, value.y + 0.25};
}
NLESizeF Other(NLESizeF value)
{
    return {value.width, value.height * 2};
}
NLESize Other(NLESize value)
{
    return {value.width, value.height + 2};
}
NLERange Other(NLERange value)
{
    return {value.in + 1, value.out};
}
NLERational Other(NLERational value)
{
    return {value.num, value.den + 1};
}
std::optional<NLERange> Other(const std::optional<NLERange>& /*value*/)
{
    return NLERange{-3, 7};
}
std::optional<int> Other(const std::optional<int>& /*value*/)
{
    return 0;
}
std::wstring Other(const std::wstring& value)
{
    return value + L" 50%\x07";
}
QString Other(const QString& value)
{
    return value + QLatin1Char('x');
}
std::vector<int> Other(const std::vector<int>& /*value*/)
{
    return {3, 1};
}
std::vector<VolumePoint> Other(const std::vector<VolumePoint>& /*value*/)
{
    return {{-0.5, 0.1}, {2, 16}};
}
std::shared_ptr<const NLEAlphaChannelRecord>
Other(const std::shared_ptr<const NLEAlphaChannelRecord>& /*value*/)
{
    auto record = std::make_shared<NLEAlphaChannelRecord>();
    record->param4 = 0.1;
    record->tail[15] = 255;
    return record;
}
std::shared_ptr<const MediaInfo> Other(const std::shared_ptr<const MediaInfo>& /*value*/)
{
    return OfflineMedia(QDir::rootPath() + QStringLiteral("elsewhere/proxy.mov"));
}
std::shared_ptr<const KeyFrameCurve> Other(const std::shared_ptr<const KeyFrameCurve>& /*value*/)
{
    auto curve = std::make_shared<KeyFrameCurve>();
    curve->frames = {kPlainKeyFrame};
    return curve;
}
SharedParameters Other(const SharedParameters& /*value*/)
{
    return std::make_shared<ParameterValues>(TitleDeclaration());
}
std::vector<SharedParameters> Other(const std::vector<SharedParameters>& /*value*/)
{
    static const Declaration blur = {{"blur", "Blur"}, {}};
    return {std::make_shared<ParameterValues>(blur)};
}
std::vector<Snapshot> Other(const std::vector<Snapshot>& /*value*/)
{
    return {std::make_shared<Layer>()};
}
std::vector<LayerTransition> Other(const std::vector<LayerTransition>& /*value*/)
{
    return {LayerTransition()};
}
MixerSettings Other(const MixerSettings& /*value*/)
{
    return {{1, {0.5, 0, 0, 0}}};
}
/// A struct of fields: one field that shows where there is one.
BlendSettings Other(BlendSettings value)
{
    value.alpha /= 2;
    return value;
}
TransformSettings Other(TransformSettings value)
{
    value.rotation += 1;
    return value;
}
AudioSettings Other(AudioSettings value)
{
    value.volume /= 2;
    return value;
}
SourceSettings Other(SourceSettings value)
{
    value.videoStream += 1;
    return value;
}
RenderContext Other(RenderContext value)
{
    value.previewScale /= 2;
    return value;
}

double Changed(double value, double lowest, double /*highest*/)
{
    return value / 2 == lowest ? value + 0.125 : value / 2 + 0.125;
}
template <std::size_t Count>
std::array<double, Count> Changed(std::array<double, Count> values, double /*low*/, double /*high*/)
{
    values.back() += 6;
    return values;
}
template <typename Value, typename Number>
Value Changed(Value value, Number lowest, Number /*highest*/)
{
    if constexpr (std::is_same_v<Value, bool>)
        return !value;
    else if constexpr (std::is_arithmetic_v<Value> || std::is_enum_v<Value>)
        return Number(value) == lowest ? Value(Number(value) + 1) : Value(Number(value) - 1);
    else
        return Other(value);
}

// ---- Whether a value came back

template <typename Value>
bool CameBack(const Value& a, const Value& b)
{
    return IsSame(a, b);
}
bool CameBack(const std::shared_ptr<const NLEAlphaChannelRecord>& a,
              const std::shared_ptr<const NLEAlphaChannelRecord>& b)
{
    return a && b && a->param4 == b->param4 && a->tail[15] == b->tail[15];
}
bool CameBack(const std::shared_ptr<const MediaInfo>& a, const std::shared_ptr<const MediaInfo>& b)
{
    return a && b && a->path == b->path;
}
bool CameBack(const std::optional<NLERange>& a, const std::optional<NLERange>& b)
{
    return a && b && a->in == b->in && a->out == b->out;
}

/// One field of a node's settings.
struct NodeField
{
    std::function<void(TimelineNode&)> change;
    std::function<bool(TimelineNode&, TimelineNode&)> cameBack;
    bool shows;
};

/// Adds a row for each field of the settings that \a settingsOf gives of a node.
template <typename Settings>
void AddRows(Settings& (*settingsOf)(TimelineNode&))
{
    int number = 0;
    ForEachField<Settings>([&](const auto& field) {
        const NodeField row = {[=](TimelineNode& node) {
                                   auto& value = settingsOf(node).*field.member;
                                   value = Changed(value, field.lowest, field.highest);
                               },
                               [=](TimelineNode& a, TimelineNode& b) {
                                   return CameBack(settingsOf(a).*field.member,
                                                   settingsOf(b).*field.member);
                               },
                               bool(field.shows)};
        QTest::addRow("%s, field %d of the list", field.property, ++number) << row;
    });
}

/// A clip whose settings are all in use, so that switching one off shows.
NodePointer MakeClip()
{
    NodePointer clip = MakeCom<ColorClip>(0xFFFF0000u, NLESize{320, 180}, NLERational{25, 1});
    clip->Blend().settings.alpha = 100;
    clip->Transform().settings.rotation = 10;
    clip->Transform().settings.scale = {0.5, 0.5};
    return clip;
}

ContentKey KeyOf(const Layer& layer)
{
    return LayerKeys().Of(layer);
}

Layer MakeLayer()
{
    Layer layer;
    layer.kind = LayerKind::Media;
    layer.media = OfflineMedia(QDir::rootPath() + QStringLiteral("here.mov"));
    return layer;
}

} // namespace

Q_DECLARE_METATYPE(NLERational)
Q_DECLARE_METATYPE(NodeField)
Q_DECLARE_METATYPE(std::function<void(Layer&)>)
Q_DECLARE_METATYPE(UseOfRoom)
Q_DECLARE_METATYPE(ChunkStore::Room)

class TestScene : public QObject
{
    Q_OBJECT

private slots:
    void frameTimes_data()
    {
        QTest::addColumn<double>("frame");
        QTest::addColumn<NLERational>("from");
        QTest::addColumn<NLERational>("to");
        QTest::addColumn<int>("nearest");
        QTest::addColumn<int>("shown");
        const NLERational pal = {25, 1};
        const NLERational ntsc = {30000, 1001};
        const NLERational none = {0, 1};
        QTest::newRow("the same rate") << 7.0 << pal << pal << 7 << 7;
        QTest::newRow("a frame that starts at the same instant")
            << 1001.0 << ntsc << pal << 835 << 835;
        QTest::newRow("between two frames, nearer to the later") << 8.0 << ntsc << pal << 7 << 6;
        QTest::newRow("before the start") << -8.0 << ntsc << pal << -7 << -7;
        QTest::newRow("further than a number holds")
            << 2e9 << pal << NLERational{50, 1} << INT32_MAX << INT32_MAX;
        QTest::newRow("from a rate that cannot be counted with") << 7.0 << none << pal << 0 << 0;
        QTest::newRow("to a rate that cannot be counted with")
            << 7.0 << pal << NLERational{25, 0} << 0 << 0;
    }

    void frameTimes()
    {
        QFETCH(double, frame);
        QFETCH(NLERational, from);
        QFETCH(NLERational, to);
        QTEST(FrameTime({frame, from}).NearestAt(to), "nearest");
        QTEST(FrameTime({frame, from}).ShownAt(to), "shown");
    }

    void settings_data()
    {
        QTest::addColumn<NodeField>("field");
        AddRows<PlacementSettings>([](TimelineNode & node) -> auto& { return node.Placement(); });
        AddRows<BlendSettings>([](TimelineNode & node) -> auto& { return node.Blend().settings; });
        AddRows<TransformSettings>(
            [](TimelineNode & node) -> auto& { return node.Transform().settings; });
        AddRows<AudioSettings>([](TimelineNode & node) -> auto& { return node.Audio().settings; });
        AddRows<VideoSettings>([](TimelineNode & node) -> auto& { return node.Video().settings; });
        AddRows<SourceSettings>([](TimelineNode & node) -> auto& { return node.Source(); });
        AddRows<tagMixerParam>([](TimelineNode & node) -> auto& {
            return node.Mixer().settings.try_emplace(3, kNeutralStrip).first->second;
        });
        AddRows<NLEMarkerRecord>([](TimelineNode & node) -> auto& {
            node.Markers().settings.resize(1);
            return node.Markers().settings.front().record;
        });
    }

    /// Every field survives clone and document, and makes pictures stale exactly when it shows.
    void settings()
    {
        QFETCH(NodeField, field);
        const NodePointer plain = MakeClip();
        const NodePointer clip = MakeClip();
        field.change(*clip);
        QVERIFY(!field.cameBack(*plain, *clip));
        QCOMPARE(KeyOf(*clip->MakeSnapshot()) != KeyOf(*plain->MakeSnapshot()), field.shows);

        NLEComPtr<INLETimeline> clone;
        QCOMPARE(clip->Clone(true, clone.put()), S_OK);
        QVERIFY(field.cameBack(*clip, *TimelineNode::From(clone.get())));

        QString text;
        MltWriter(text, QDir::root()).Write(*clip);
        const NodePointer read = MltReader(text.toUtf8(), QDir::root()).Read();
        QVERIFY(read);
        QVERIFY2(field.cameBack(*clip, *read), qUtf8Printable(text));
    }

    void layerFields_data()
    {
        QTest::addColumn<std::function<void(Layer&)>>("change");
        QTest::addColumn<bool>("shows");
        int number = 0;
        ForEachField<Layer>([&](const auto& field) {
            const std::function<void(Layer&)> change = [=](Layer& layer) {
                layer.*field.member = Changed(layer.*field.member, field.lowest, field.highest);
            };
            QTest::addRow("field %d of the list", ++number) << change << (bool(field.shows));
        });
    }

    void layerFields()
    {
        QFETCH(std::function<void(Layer&)>, change);
        Layer layer = MakeLayer();
        const ContentKey before = KeyOf(layer);
        change(layer);
        QTEST(KeyOf(layer) != before, "shows");
    }

    /// What is switched off counts as what was never set.
    void neutralSettingsShareKeys_data()
    {
        QTest::addColumn<std::function<void(Layer&)>>("change");
        const auto row = [](const char* name, const std::function<void(Layer&)>& change) {
            QTest::newRow(name) << change;
        };
        row("a blending that is switched off", [](Layer& layer) {
            layer.blend = {false, BlendMode::Screen, 10};
        });
        row("a transform that is switched off", [](Layer& layer) {
            layer.transform.rotation = 90;
            layer.transform.enabled = false;
        });
    }

    void neutralSettingsShareKeys()
    {
        QFETCH(std::function<void(Layer&)>, change);
        Layer layer = MakeLayer();
        const ContentKey before = KeyOf(layer);
        change(layer);
        QVERIFY(KeyOf(layer) == before);
    }

    /// What is left of a quota of 100 bytes when 60 were reserved.
    void reservedRoom_data()
    {
        using Reservation = ChunkStore::Reservation;
        QTest::addColumn<UseOfRoom>("use");
        QTest::addColumn<int>("left");
        const auto row = [](const char* name, int left, const UseOfRoom& use) {
            QTest::newRow(name) << use << left;
        };
        row("nothing was written", 100, [](ChunkStore&, Reservation&) {});
        row("moved, nothing was written", 100, [](ChunkStore&, Reservation& reserved) {
            const Reservation moved = std::move(reserved);
        });
        row("the chunk was written", 40, [](ChunkStore& store, Reservation& reserved) {
            store.Add({1, 1}, std::move(reserved), {100, 0}, {{1, 1}});
        });
        row("there was no room for another", 100, [](ChunkStore& store, Reservation&) {
            const Reservation refused = store.Reserve({100, 0}, 41, {});
        });
    }

    void reservedRoom()
    {
        QFETCH(const UseOfRoom, use);
        QFETCH(const int, left);
        const QTemporaryDir folder;
        const auto store = ChunkStore::Of(folder.path());
        QVERIFY(store->Prepare());
        store->Refresh();
        {
            ChunkStore::Reservation reserved = store->Reserve({100, 0}, 60, {});
            QCOMPARE(reserved.Outcome(), ChunkStore::Room::Enough);
            use(*store, reserved);
        }
        const KeySet keep = {{1, 1}};
        QCOMPARE(store->MakeRoom({100, 0}, left + 1, keep), ChunkStore::Room::QuotaReached);
        QCOMPARE(store->MakeRoom({100, 0}, left, keep), ChunkStore::Room::Enough);
    }

    /// Who may remove a chunk that this process has not written.
    void chunksOfOthers_data()
    {
        QTest::addColumn<int>("age");
        QTest::addColumn<bool>("isAtWork");
        QTest::addColumn<ChunkStore::Room>("room");
        const int minute = 60000;
        using Room = ChunkStore::Room;
        QTest::newRow("written a minute ago") << minute << true << Room::QuotaReached;
        QTest::newRow("written an hour ago") << 60 * minute << true << Room::Enough;
        QTest::newRow("left by an earlier process") << minute << false << Room::Enough;
    }

    void chunksOfOthers()
    {
        QFETCH(const int, age);
        QFETCH(const bool, isAtWork);
        QFETCH(const ChunkStore::Room, room);
        const QTemporaryDir folder;
        const auto store = ChunkStore::Of(folder.path());
        if (isAtWork)
            store->EnsureListed();
        QFile file(store->PathOf({1, 1}));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(60, 'x')), 60LL);
        QVERIFY(file.flush());
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addMSecs(-age),
                                 QFileDevice::FileModificationTime));
        file.close();
        QVERIFY(store->Prepare());
        store->Refresh();
        QCOMPARE(store->MakeRoom({100, 0}, 41, {}), room);
        QCOMPARE(file.exists(), room != ChunkStore::Room::Enough);
    }
};

QTEST_GUILESS_MAIN(TestScene)
#include "tst_scene.moc"
