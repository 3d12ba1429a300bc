// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QImage>
#include <QSize>

#include <array>
#include <cstdint>
#include <deque>
#include <optional>

namespace nle {

/// Finds where one scene ends and another begins in a run of pictures that are given one by one.
///
/// A cut is a change that stands out from those around it, in the picture after the best shift of
/// the whole (so a pan is none) and in its colours. Where the old picture comes back within a
/// quarter of a second it was a flash. A dissolve is a stretch of up to two and a half seconds
/// whose pictures are mixtures of its first and its last one, in steady progress, while these two
/// are different pictures and not one in another light. Black or another plain picture belongs to
/// the scene that fades into it. Scenes last a quarter of a second at least.
class SceneDetector
{
public:
    /// \a frameRate is pictures a second, above 0.
    explicit SceneDetector(double frameRate);

    /// The size to give pictures of \a size at: small, of the same shape, and the cheapest.
    static QSize PictureSize(const QSize& size);

    /// Takes the next picture, of 32 bits a pixel and at least kColumns x kRows; a null one repeats
    /// the picture before.
    void Add(const QImage& picture);
    /// There are no more pictures: what was held back is decided.
    void Finish();
    /// The number, from 0, of the first picture of the next scene, if one was found. Of a dissolve
    /// it is the first picture that has more of the new than of the old one.
    std::optional<int> Take();

    static constexpr int kColumns = 32;
    static constexpr int kRows = 18;

private:
    static constexpr int kNone = INT32_MAX;
    static constexpr int kCells = kColumns * kRows;
    static constexpr int kPlanes = 3;
    static constexpr int kColours = 8 * 4 * 4;

    /// What is kept of a picture.
    struct Sketch
    {
        /// Luma and two colour differences around 128, of cells.
        std::array<std::uint8_t, std::size_t(kCells* kPlanes)> cells;
        /// Share of the pixels in each range of colours, in 1/65535.
        std::array<std::uint16_t, kColours> colours;
        bool isPlain;
    };
    /// A way from one picture to another.
    struct Span
    {
        int first;
        int last;
    };

    static Sketch Draw(const QImage& picture);
    static double ShiftedDifference(const Sketch& a, const Sketch& b);
    static double ColourDifference(const Sketch& a, const Sketch& b);
    static double ShareOfMotion(const Sketch& a, const Sketch& b);
    static double Likeness(const Sketch& a, const Sketch& b);

    const Sketch& At(int picture) const { return m_sketches[std::size_t(picture - m_first)]; }
    int End() const { return m_first + int(m_sketches.size()); }
    void DecideCut(int picture);
    bool StandsOut(int picture) const;
    double UsualChange(int first, int last) const;
    int EndOfFlash(int picture) const;
    void DecideDissolve(int last);
    bool IsDissolve(const Span& span) const;
    bool IsMixture(const Span& span) const;
    /// How far \a picture is on the way, 0 to 1, and what of it lies beside the way.
    struct Progress
    {
        double place;
        double residue;
    };
    Progress On(const Span& span, double length, int picture) const;
    double LengthOf(const Span& span) const;
    void Found(int picture);

    const int m_shortest; ///< pictures in a quarter of a second
    const int m_stride;   ///< distance of the pictures that dissolves are looked for in

    std::deque<Sketch> m_sketches; ///< the last ones
    std::deque<double> m_changes;  ///< from the picture before, of the same pictures
    int m_first = 0;               ///< number of the first of them
    int m_nextCut = 1;             ///< first picture that was not decided about
    int m_sceneStart = 0;
    int m_quietUntil = 0;       ///< a flash ends here
    int m_dissolveFrom = 0;     ///< dissolves begin here or later
    int m_firstPicture = kNone; ///< of the scene that is more than plain
    std::deque<int> m_found;
};

} // namespace nle
