// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/render/EffectPicture.h"

#include <QRgba64>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <new>
#include <vector>

namespace nle {

namespace {

constexpr int kUsualMost = 0xFF;
constexpr int kDeepMost = 0xFFFF;

/// Bits of the components of a pixel of 32 and of 64 bits: red, green, blue, alpha.
constexpr std::array<int, 4> kUsualShifts = {16, 8, 0, 24};
constexpr std::array<int, 4> kDeepShifts = {0, 16, 32, 48};

bool HasAlpha(const QImage& image)
{
    return image.hasAlphaChannel();
}

bool IsDeepImage(const QImage& image)
{
    constexpr int deepPixel = 64;
    return image.depth() == deepPixel;
}

template <typename Pixel>
void ReadPlane(const Pixel* pixels, int shift, int most, float* plane, int width)
{
    const float unit = 1.0F / float(most);
    for (int x = 0; x < width; ++x)
        plane[x] = float(int((pixels[x] >> shift) & Pixel(most))) * unit;
}

/// The component as the format holds it.
template <typename Pixel>
Pixel Packed(float value, int most, int shift)
{
    const float within = std::min(std::max(value, 0.0F), 1.0F);
    return Pixel(int(within * float(most) + 0.5F)) << shift;
}

template <typename Pixel>
void WritePixels(const EffectRow& row, const std::array<int, 4>& shifts, int most, bool hasAlpha,
                 Pixel* pixels)
{
    const float* red = row.colors[0];
    const float* green = row.colors[1];
    const float* blue = row.colors[2];
    const float* alphas = row.alpha;
    const int width = row.width; // a pixel could lie in the one that is read each time
    if (!hasAlpha) {
        const Pixel opaque = Pixel(most) << shifts[3];
        for (int x = 0; x < width; ++x)
            pixels[x] = opaque | Packed<Pixel>(red[x], most, shifts[0]) |
                        Packed<Pixel>(green[x], most, shifts[1]) |
                        Packed<Pixel>(blue[x], most, shifts[2]);
        return;
    }
    for (int x = 0; x < width; ++x) {
        const float alpha = std::min(std::max(alphas[x], 0.0F), 1.0F);
        const auto multiplied = [alpha](float value) {
            return std::min(std::max(value, 0.0F), 1.0F) * alpha;
        };
        pixels[x] = Packed<Pixel>(alpha, most, shifts[3]) |
                    Packed<Pixel>(multiplied(red[x]), most, shifts[0]) |
                    Packed<Pixel>(multiplied(green[x]), most, shifts[1]) |
                    Packed<Pixel>(multiplied(blue[x]), most, shifts[2]);
    }
}

template <typename Pixel>
void ReadPixels(const Pixel* pixels, const std::array<int, 4>& shifts, int most,
                const EffectRow& row)
{
    for (std::size_t color = 0; color < row.colors.size(); ++color)
        ReadPlane(pixels, shifts[color], most, row.colors[color], row.width);
    ReadPlane(pixels, shifts[3], most, row.alpha, row.width);
}

/// Bands that several threads take one after the other.
class SharedBands
{
public:
    SharedBands(int count, int size, const std::function<void(int, int)>& work)
        : m_count(count), m_size(size), m_work(work)
    {
    }

    void Run()
    {
        try {
            while (!m_failed) {
                const int first = m_next.fetch_add(1) * m_size;
                if (first >= m_count)
                    return;
                m_work(first, std::min(first + m_size, m_count));
            }
        } catch (const std::bad_alloc&) {
            m_failed = true;
        }
    }
    bool HasFailed() const { return m_failed; }

private:
    const int m_count;
    const int m_size;
    const std::function<void(int, int)>& m_work;
    std::atomic<int> m_next{0};
    std::atomic<bool> m_failed{false};
};

/// Memory of pictures that have ended. That the system hands out fresh pages costs more than most
/// effects do.
class SpareMemory
{
public:
    std::unique_ptr<float[]> Take(std::size_t count)
    {
        {
            const std::lock_guard lock(m_mutex);
            const auto found = std::find_if(m_spares.rbegin(), m_spares.rend(),
                                            [=](const Spare& one) { return one.count == count; });
            if (found != m_spares.rend()) {
                std::unique_ptr<float[]> data = std::move(found->data);
                m_spares.erase(std::next(found).base());
                return data;
            }
        }
        return std::unique_ptr<float[]>(new float[count]); // not cleared
    }
    /// The oldest make room.
    void Leave(std::unique_ptr<float[]> data, std::size_t count)
    {
        if (count < kLeast || count > kMost)
            return;
        const std::lock_guard lock(m_mutex);
        m_spares.push_back({std::move(data), count});
        std::size_t sum = 0;
        auto kept = m_spares.end();
        while (kept != m_spares.begin() && sum + std::prev(kept)->count <= kMost)
            sum += (--kept)->count;
        m_spares.erase(m_spares.begin(), kept);
    }
    void Free()
    {
        const std::lock_guard lock(m_mutex);
        m_spares.clear();
    }

private:
    struct Spare
    {
        std::unique_ptr<float[]> data;
        std::size_t count;
    };
    static constexpr std::size_t kLeast = (std::size_t(256) << 10) / sizeof(float); ///< of one
    static constexpr std::size_t kMost = (std::size_t(128) << 20) / sizeof(float);  ///< in all

    std::mutex m_mutex;
    std::vector<Spare> m_spares; ///< the oldest first
};

SpareMemory& Spares()
{
    static SpareMemory s_spares;
    return s_spares;
}

/// Who lends a hand to the bands of one call. The pool tells nobody when a thread of its cannot be
/// made, so only those are waited for who have come.
class Helpers
{
public:
    explicit Helpers(SharedBands& bands) : m_bands(bands) {}

    void Help()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (m_isOver)
                return;
            ++m_busy;
        }
        m_bands.Run();
        const std::lock_guard<std::mutex> lock(m_mutex);
        --m_busy;
        m_changed.notify_one();
    }
    /// Whoever comes later finds the work done; those who are at it end first.
    void Dismiss()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_isOver = true;
        m_changed.wait(lock, [this] { return m_busy == 0; });
    }

private:
    SharedBands& m_bands; ///< until it is over
    std::mutex m_mutex;   ///< guards the rest
    std::condition_variable m_changed;
    int m_busy = 0;
    bool m_isOver = false;
};

} // namespace

void ForBands(int count, const Bands& bands, const std::function<void(int first, int end)>& work)
{
    SharedBands shared(count, bands.size, work);
    const auto helpers = std::make_shared<Helpers>(shared);
    QThreadPool& pool = *QThreadPool::globalInstance();
    int most = bands.isParallel ? std::min(pool.maxThreadCount(), count / bands.size) - 1 : 0;
    while (most-- > 0 && pool.tryStart([helpers] { helpers->Help(); }))
        ;
    shared.Run();
    helpers->Dismiss();
    if (shared.HasFailed())
        throw std::bad_alloc();
}

EffectPicture::EffectPicture(const QSize& size) : m_size(size)
{
    const Leave leave = {std::size_t(kPlanes) * std::size_t(size.width()) *
                         std::size_t(size.height())};
    m_data = Planes(Spares().Take(leave.count).release(), leave);
}

void EffectPicture::Leave::operator()(float* data) const noexcept
{
    std::unique_ptr<float[]> owned(data);
    try {
        Spares().Leave(std::move(owned), count);
    } catch (const std::bad_alloc&) {
        return; // it is freed
    }
}

void EffectPicture::FreeSpare()
{
    Spares().Free();
}

void CopyPlanes(const EffectPicture& from, EffectPicture& to, int first, int last,
                const Bands& bands)
{
    ForBands(from.Height(), bands, [&](int top, int end) {
        for (int plane = first; plane <= last; ++plane)
            std::copy(from.Row(plane, top),
                      from.Row(plane, top) + std::ptrdiff_t(end - top) * from.Width(),
                      to.Row(plane, top));
    });
}

void ReadRow(const QImage& image, const EffectRow& row)
{
    const uchar* line = image.constScanLine(row.y);
    if (IsDeepImage(image))
        ReadPixels(reinterpret_cast<const quint64*>(line), kDeepShifts, kDeepMost, row);
    else
        ReadPixels(reinterpret_cast<const quint32*>(line), kUsualShifts, kUsualMost, row);
    if (HasAlpha(image))
        Divide(row);
    else
        std::fill(row.alpha, row.alpha + row.width, 1.0F);
}

void WriteRow(const EffectRow& row, QImage& image)
{
    // Not scanLine(): it asks whether the pixels are shared, which threads must not do.
    auto* line = const_cast<uchar*>(image.constScanLine(row.y));
    if (IsDeepImage(image))
        WritePixels(row, kDeepShifts, kDeepMost, HasAlpha(image), reinterpret_cast<quint64*>(line));
    else
        WritePixels(row, kUsualShifts, kUsualMost, HasAlpha(image),
                    reinterpret_cast<quint32*>(line));
}

void Multiply(const EffectRow& row)
{
    for (float* plane : row.colors) {
        for (int x = 0; x < row.width; ++x)
            plane[x] *= row.alpha[x];
    }
}

void Divide(const EffectRow& row)
{
    for (float* plane : row.colors) {
        for (int x = 0; x < row.width; ++x)
            plane[x] = row.alpha[x] > 0 ? plane[x] / row.alpha[x] : 0.0F;
    }
}

} // namespace nle
