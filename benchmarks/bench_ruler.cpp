// SPDX-License-Identifier: LGPL-2.1-or-later
// What painting the ruler costs beside the drawing calls that it makes, recorded once and played
// back bare on the same picture; and the slowest conversions.
#include "CommonLib/TimelineRuler.h"
#include "CommonLib/externalapi/PixelRatio.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Pairs.h"

#include <QApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <climits>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>
#include <vector>

namespace {

constexpr int kWidth = 3840;

using Call = std::function<void(QPainter&)>;

// Records lines, polygons, rectangles and texts as the calls that draw them.
class Recorder : public QPaintEngine
{
public:
    explicit Recorder(std::vector<Call>& calls) : QPaintEngine(AllFeatures), m_calls(calls) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState& changed) override
    {
        const auto flags = changed.state();
        if (flags & DirtyPen)
            m_calls.push_back([pen = changed.pen()](QPainter& p) { p.setPen(pen); });
        if (flags & DirtyBrush)
            m_calls.push_back([brush = changed.brush()](QPainter& p) { p.setBrush(brush); });
        if (flags & DirtyHints)
            m_calls.push_back([hints = changed.renderHints()](QPainter& p) {
                p.setRenderHint(QPainter::Antialiasing, hints & QPainter::Antialiasing);
            });
    }
    void drawLines(const QLineF* lines, int count) override
    {
        QVector<QLineF> all;
        std::copy(lines, lines + count, std::back_inserter(all));
        // In one call, which costs a fraction of a call a line.
        m_calls.push_back([all](QPainter& p) { p.drawLines(all); });
        m_lines += count;
    }
    void drawLines(const QLine* lines, int count) override
    {
        QPaintEngine::drawLines(lines, count);
    }
    void drawRects(const QRectF* rects, int count) override { AddRects(rects, count); }
    void drawRects(const QRect* rects, int count) override { AddRects(rects, count); }
    void drawPolygon(const QPointF* points, int count, PolygonDrawMode) override
    {
        QPolygonF polygon;
        for (int i = 0; i < count; ++i)
            polygon << points[i];
        m_calls.push_back([polygon](QPainter& p) { p.drawPolygon(polygon); });
    }
    void drawPolygon(const QPoint* points, int count, PolygonDrawMode mode) override
    {
        QPaintEngine::drawPolygon(points, count, mode);
    }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        m_calls.push_back([at, text = item.text()](QPainter& p) { p.drawText(at, text); });
        ++m_texts;
    }
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    int Lines() const { return m_lines; }
    int Texts() const { return m_texts; }

private:
    // Lines of whole pixels are rectangles. In one call, too.
    template <typename Rect>
    void AddRects(const Rect* rects, int count)
    {
        QVector<Rect> all;
        std::copy(rects, rects + count, std::back_inserter(all));
        m_calls.push_back([all](QPainter& p) { p.drawRects(all); });
        m_lines += count;
    }

    std::vector<Call>& m_calls;
    int m_lines = 0;
    int m_texts = 0;
};

class RecordingDevice : public QPaintDevice
{
public:
    RecordingDevice(Recorder& recorder, const QSize& size) : m_recorder(recorder), m_size(size) {}
    QPaintEngine* paintEngine() const override { return &m_recorder; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return m_size.width();
        case PdmHeight:
            return m_size.height();
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 96;
        }
    }

private:
    Recorder& m_recorder;
    QSize m_size;
};

struct Scene
{
    const char* name;
    float zoom;
    int offset;
};

// A ruler at a scene and what it draws.
class Painting
{
public:
    explicit Painting(const Scene& scene) : m_offset(scene.offset)
    {
        m_ruler.setStyleSheet(gGetCommonLibStyles());
        m_ruler.resize(kWidth, m_ruler.Height());
        m_ruler.SetZoom(scene.zoom);
        m_ruler.SetOffsetFrames(scene.offset);
        m_ruler.SetCurrentFrames(scene.offset +
                                 static_cast<int>(m_ruler.Duration2FramesF(kWidth / 2)));
        m_ruler.ensurePolished();
        m_view = m_ruler.SetEventFilter(nullptr);
        m_ruler.grab(); // lays out
        Recorder recorder(m_calls);
        RecordingDevice device(recorder, m_view->size());
        m_view->render(&device, {}, {}, QWidget::DrawWindowBackground);
        m_image = QImage(m_view->size(), QImage::Format_ARGB32_Premultiplied);
        std::printf("%s: %d lines, %d texts\n", scene.name, recorder.Lines(), recorder.Texts());
    }
    void Paint() { m_view->render(&m_image); }
    void PaintScrolled()
    {
        m_ruler.SetOffsetFrames(m_offset + ++m_scrolled % 200);
        Paint();
    }
    void PaintBare()
    {
        QPainter painter(&m_image);
        painter.fillRect(m_image.rect(), QColor(0x20, 0x22, 0x25));
        painter.setFont(m_view->font());
        // As on every widget; the rasteriser is many times slower without.
        painter.setClipRect(m_image.rect());
        for (const Call& call : m_calls)
            call(painter);
    }

private:
    TimelineRuler m_ruler{nullptr};
    QWidget* m_view = nullptr;
    std::vector<Call> m_calls;
    QImage m_image;
    const int m_offset;
    int m_scrolled = 0;
};

// The slowest of many calls, over lengths of 1 frame to the largest and widths of 0 to 16,384.
void FitRanges()
{
    double slowestFind = 0;
    double slowestFit = 0;
    for (double length = 1; length <= INT_MAX; length *= 1.13) {
        for (int width = 0; width <= 16384; width += width < 64 ? 1 : 317) {
            const int frames = static_cast<int>(length);
            TimelineRuler ruler(nullptr);
            slowestFind = std::max(slowestFind, Seconds([&] { ruler.FindZoom(frames, width); }));
            slowestFit = std::max(
                slowestFit, Seconds([&] { ruler.ZoomFromWidthAndTotaleFramesF(width, frames); }));
        }
    }
    std::printf("slowest FindZoom %.3f ms, slowest ZoomFromWidthAndTotaleFramesF %.3f ms\n",
                slowestFind * 1e3, slowestFit * 1e3);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    for (const Scene& scene :
         {Scene{"widest ticks, frame 0", 0, 0}, Scene{"closest ticks, frame 0", 120, 0},
          Scene{"closest ticks, frame 10,000,000", 120, 10000000}, Scene{"hours, frame 0", 780, 0},
          Scene{"hours, frame 10,000,000", 780, 10000000},
          Scene{"beyond the scale: 1 pixel a tick", 809, 0},
          Scene{"beyond the scale: no room at all", 900, 0}}) {
        const auto painting = std::make_shared<Painting>(scene);
        const auto bare = [painting] { painting->PaintBare(); };
        const Peer peer = Bare("recorded calls");
        AddPair(
            scene.name, [painting] { painting->Paint(); }, peer, bare);
        AddPair(
            QString(scene.name) + ", scrolled by a frame",
            [painting] { painting->PaintScrolled(); }, peer, bare);
    }
    FitRanges();
    return RunPairs(argc, argv);
}
