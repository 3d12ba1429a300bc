// SPDX-License-Identifier: LGPL-2.1-or-later
#include "tests/long_run/Plot.h"

#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace {

// In pixels.
constexpr int kColumns = 2;
constexpr int kWidth = 400;
constexpr int kHeight = 120;
constexpr int kLeft = 56;
constexpr int kTop = 40;
constexpr int kBottom = 30;
constexpr int kRight = 34;

/// One quantity.
class Panel
{
public:
    Panel(QTextStream& svg, const Samples& samples, int quantity)
        : m_svg(svg)
        , m_samples(samples)
        , m_quantity(quantity)
        , m_growth(GrowthOf(samples, quantity))
    {
        for (const Sample& sample : samples)
            m_most = std::max(m_most, Value(sample));
        m_most = std::ceil(m_most * 1.1);
    }
    void Draw()
    {
        const Quantity& quantity = Quantities()[std::size_t(m_quantity)];
        m_svg << QStringLiteral("<g transform='translate(%1 %2)'>\n")
                     .arg(m_quantity % kColumns * (kLeft + kWidth + kRight) + kLeft)
                     .arg(m_quantity / kColumns * (kTop + kHeight + kBottom) + kTop);
        Rectangle(0, kWidth, "#f4f4f4");
        Rectangle(kWidth / 2, kWidth / 2, "#e6eef6");
        Text(0, -10, "start",
             QStringLiteral("<tspan class='name'>%1</tspan> %2").arg(quantity.name, Words()));
        for (const double value : {0.0, m_most})
            Text(-6, Y(value) + 4, "end", Number(value) + ' ' + quantity.unit);
        const double end = m_samples.last().minutes;
        for (const double minutes : {0.0, end / 2, end})
            Text(X(minutes), kHeight + 16, "middle", Number(minutes) + QStringLiteral(" min"));
        QString points;
        for (const Sample& sample : m_samples)
            points += QStringLiteral("%1,%2 ")
                          .arg(X(sample.minutes), 0, 'f', 1)
                          .arg(Y(Value(sample)), 0, 'f', 1);
        m_svg << "<polyline class='values' points='" << points.trimmed() << "'/>\n"
              << QStringLiteral("<line class='growth' x1='%1' x2='%2' y1='%3' y2='%4'/>\n</g>\n")
                     .arg(kWidth / 2)
                     .arg(kWidth)
                     .arg(Y(m_growth.from), 0, 'f', 1)
                     .arg(Y(m_growth.to), 0, 'f', 1);
    }

private:
    static QString Number(double value) { return QString::number(value, 'g', 4); }
    double Value(const Sample& sample) const { return sample.values[std::size_t(m_quantity)]; }
    double X(double minutes) const { return kWidth * minutes / m_samples.last().minutes; }
    double Y(double value) const { return kHeight * (1 - value / m_most); }
    QString Words() const
    {
        return QStringLiteral("grew by %1, may by %2")
            .arg(m_growth.to - m_growth.from, 0, 'f', 2)
            .arg(m_growth.limit, 0, 'f', 2);
    }
    void Rectangle(int x, int width, const char* fill)
    {
        m_svg << QStringLiteral("<rect x='%1' width='%2' height='%3' fill='%4'/>\n")
                     .arg(x)
                     .arg(width)
                     .arg(kHeight)
                     .arg(QLatin1String(fill));
    }
    void Text(double x, double y, const char* anchor, const QString& text)
    {
        m_svg << QStringLiteral("<text x='%1' y='%2' text-anchor='%3'>%4</text>\n")
                     .arg(x)
                     .arg(y)
                     .arg(QLatin1String(anchor), text);
    }

    QTextStream& m_svg;
    const Samples& m_samples;
    const int m_quantity;
    const Growth m_growth;
    double m_most = 1;
};

} // namespace

QByteArray PlotOf(const Samples& samples)
{
    QByteArray result;
    QTextStream svg(&result);
    svg << QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' width='%1' height='%2'>\n")
               .arg(kColumns * (kLeft + kWidth + kRight))
               .arg((kQuantities + kColumns - 1) / kColumns * (kTop + kHeight + kBottom))
        << "<style>text { font: 12px sans-serif; fill: #333 } .name { font-weight: bold }"
           " .values { fill: none; stroke: #1f6fb2; stroke-width: 1.5 }"
           " .growth { stroke: #d1495b; stroke-width: 2; stroke-dasharray: 6 4 }</style>\n"
           "<rect width='100%' height='100%' fill='white'/>\n";
    for (int quantity = 0; quantity < kQuantities; ++quantity)
        Panel(svg, samples, quantity).Draw();
    svg << "</svg>\n" << Qt::flush;
    return result;
}
