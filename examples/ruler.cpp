// SPDX-License-Identifier: LGPL-2.1-or-later
// example_ruler: a time ruler, a slider that zooms it, and the timecode of its play head.
#include <CommonLib/CommonLib.h>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr float kRate = 29.97f;
constexpr int kFrames = 20 * 60 * 30;
constexpr int kWidth = 900;

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    application.setStyleSheet(gGetCommonLibStyles()); // the library's own look

    QWidget window;
    window.resize(kWidth, 120);
    auto* ruler = new TimelineRuler(&window);
    auto* zoom = new ScaleUnitSlider(&window);
    auto* timecode = new QLabel(&window);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(ruler);
    layout->addWidget(zoom);
    layout->addWidget(timecode);

    ruler->SetFPS(kRate);
    ruler->SetTotalFrames(kFrames);
    ruler->SetMaxZoom(ruler->FindZoom(kFrames, kWidth));
    ruler->SetZoom(ruler->MaxZoom());
    zoom->setRange(0, ruler->MaxZoom());
    zoom->setValue(ruler->Zoom());

    // Each follows the other; what is set by a call emits nothing.
    QObject::connect(zoom, &ScaleUnitSlider::valueChanged, ruler, &TimelineRuler::SetZoom);
    QObject::connect(ruler, &TimelineRuler::ZoomChanged, zoom, &ScaleUnitSlider::setValue);
    const auto showTimecode = [=](int frame) { timecode->setText(gFrame2String(frame, kRate)); };
    QObject::connect(ruler, &TimelineRuler::FramesChanged, timecode, showTimecode);
    showTimecode(ruler->CurrentFrames());

    window.show();
    return QApplication::exec();
}
