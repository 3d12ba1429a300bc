// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QMargins>

#include <array>
#include <functional>
#include <memory>

namespace nle {

/// How the work on one picture is split: into bands of rows, columns or whatever is independent of
/// each other. The pixels are the same whatever it is.
struct Bands
{
    int size = 32;          ///< rows of a band, 1 or more
    bool isParallel = true; ///< with the idle threads of the application's pool
};

/// Calls \a work for all of 0 to \a count - 1, a band at a time: its first and, one further, its
/// end. Comes back when all is done. Throws std::bad_alloc where \a work threw.
void ForBands(int count, const Bands& bands, const std::function<void(int first, int end)>& work);

/// Components of a picture, planes of floats: 0 to 1 and, between effects, beyond. Colours are
/// multiplied with alpha.
class EffectPicture
{
public:
    static constexpr int kPlanes = 4; ///< red, green, blue, alpha

    EffectPicture() = default;
    explicit EffectPicture(const QSize& size);

    const QSize& Size() const { return m_size; }
    int Width() const { return m_size.width(); }
    int Height() const { return m_size.height(); }
    float* Row(int plane, int y)
    {
        return m_data.get() +
               (std::size_t(plane) * std::size_t(Height()) + std::size_t(y)) * std::size_t(Width());
    }
    const float* Row(int plane, int y) const
    {
        return const_cast<EffectPicture*>(this)->Row(plane, y);
    }

    /// Frees what pictures that have ended have left for the next ones.
    static void FreeSpare();

private:
    /// Leaves the memory for the next picture of the same size.
    struct Leave
    {
        std::size_t count;
        void operator()(float* data) const noexcept;
    };

    using Planes = std::unique_ptr<float[], Leave>;

    QSize m_size;
    Planes m_data;
};

/// Copies planes \a first to \a last between pictures of one size.
void CopyPlanes(const EffectPicture& from, EffectPicture& to, int first, int last,
                const Bands& bands);

/// A row of a picture for effects that look at one pixel alone. Colours are not multiplied.
struct EffectRow
{
    std::array<float*, 3> colors; ///< red, green, blue
    float* alpha;
    int width;
    int y;
};

/// Reads a row of \a image, one of the formats that layers are drawn in; not multiplied.
void ReadRow(const QImage& image, const EffectRow& row);
/// Writes a row as the image's format has it: rounded, within what it can hold.
void WriteRow(const EffectRow& row, QImage& image);
/// Multiplies the colours with alpha, or takes it out of them.
void Multiply(const EffectRow& row);
void Divide(const EffectRow& row);

} // namespace nle
