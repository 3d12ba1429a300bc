// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/externalapi/PixelRatio.h"

#include "CommonLib/BaseLog.h"
#include "CommonLib/GlobalUtils.h"
#include "CommonLib/StringOperation.h"
#include "CommonLib/externalapi/PixelRatio_p.h"
#include "CommonLib/externalapi/Screens_p.h"

#include <QFileInfo>
#include <QFont>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

constexpr const char* kSource = "CommonLib/externalapi";
constexpr const char* kFunction = "gGetDevicePixelRatio";
constexpr int kMonitorLine = 97;
constexpr int kFixedRatioLine = 128;
constexpr int kLoweredLine = 136;
constexpr int kFinalLine = 149;
constexpr double kRatioTolerance = 0.000001;

using ScreenInfo = ScreenResolution::ScreenInfo;

ScreenInfo PrimaryScreen(const QVector<ScreenInfo>& infos)
{
    const auto found = std::find_if(infos.begin(), infos.end(),
                                    [](const ScreenInfo& info) { return info.primary; });
    ScreenInfo none;
    none.physical = QRect(0, 0, 0, 0);
    return found == infos.end() ? none : *found;
}

double FindSystemPixelRatio()
{
    const ScreenInfo primary = PrimaryScreen(ListScreens());
    const double scale = static_cast<double>(primary.scale);
    const int width = primary.physical.width();
    const int height = primary.physical.height();
    BaseLog* log = GetGlobalLogInstance();
    log->LogInfo(kSource, kFunction, kMonitorLine,
                 "[monitor physical size]:(%d, %d) [app max size]:(%f, %f) fFixedRatio %f", width,
                 height, kLeastWidth, kLeastHeight, scale);
    const double fixed = FixedPixelRatio(scale);
    log->LogInfo(kSource, kFunction, kFixedRatioLine, "getIntRatio fFixedRatio: %f", fixed);
    const double result = FittingPixelRatio(fixed, width, height, [log](double ratio) {
        log->LogInfo(kSource, kFunction, kLoweredLine, "ratio down to: %f", ratio);
    });
    log->LogInfo(kSource, kFunction, kFinalLine, "final fFixedRatio: %f", result);
    return result;
}

double SystemPixelRatio()
{
    static const double ratio = FindSystemPixelRatio();
    return ratio;
}

} // namespace

float gGetDevicePixelRatio(QWidget* widget)
{
    const double system = SystemPixelRatio();
    const HMONITOR monitor = widget ? NearestMonitor(*widget) : nullptr;
    if (!monitor)
        return static_cast<float>(system);
    const QVector<ScreenInfo> infos = ListScreens();
    const auto found = std::find_if(infos.begin(), infos.end(), [monitor](const ScreenInfo& info) {
        return info.handle == monitor;
    });
    if (found == infos.end())
        return static_cast<float>(system);
    return static_cast<float>(PixelRatioOn(system, static_cast<double>(PrimaryScreen(infos).scale),
                                           static_cast<double>(found->scale)));
}

float gGetDevicePixelRatioFor(QWidget* widget)
{
    return static_cast<float>(widget ? widget->devicePixelRatioF() : SystemPixelRatio());
}

QString gGetResourcePathWithPixelRatio(QString path)
{
    if (std::abs(SystemPixelRatio() - 1.0) <= kRatioTolerance)
        return path;
    const QFileInfo file(path);
    return QStringLiteral("%1/%2_2x.%3").arg(file.path(), file.completeBaseName(), file.suffix());
}

QString gGetCommonLibStyles()
{
    return gGetStyleSheet(nullptr, gGetResourcePathWithPixelRatio(
                                       QStringLiteral(":/CommonLib/Resources/styles.qss")));
}

int gGetRetranslateUiTextLenght(QFont font, QString text, int minimum, int extra)
{
    const int width = StringOperation::GetTextTrueLenght(font, text);
    return width > minimum ? width + extra : minimum;
}
