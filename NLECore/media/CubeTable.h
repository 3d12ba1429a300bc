// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <array>
#include <memory>
#include <vector>

namespace nle {

/// A table of colours by colours, as files with the suffix .cube hold them, of three dimensions or
/// of one. Immutable, so any thread may use it.
class CubeTable
{
public:
    using Color = std::array<float, 3>; ///< red, green, blue

    /// The table of a file; null, with a line in the log, when it holds none. Kept until the file
    /// changes, and for all who use it at a time.
    static std::shared_ptr<const CubeTable> Open(const QString& path);
    /// The table of a file's text; null when there is none.
    static std::shared_ptr<const CubeTable> Parse(const QByteArray& text);

    /// The colour for a colour, between the entries by the tetrahedron that it lies in. What lies
    /// outside of the table counts as the nearest inside.
    Color At(float red, float green, float blue) const
    {
        return m_isSingle ? AtSingle({red, green, blue}) : AtCube({red, green, blue});
    }
    /// Entries along a side.
    int Size() const { return m_size; }

private:
    CubeTable() = default;
    Color AtCube(const Color& color) const;
    Color AtSingle(const Color& color) const;
    /// Where a component lies among the entries, 0 to m_size - 1.
    float Place(std::size_t component, float value) const;

    bool m_isSingle = false;
    int m_size = 0;
    Color m_lowest = {0, 0, 0};
    Color m_scale = {1, 1, 1};    ///< entries a unit
    std::vector<Color> m_entries; ///< red changes fastest
};

} // namespace nle
