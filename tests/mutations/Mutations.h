// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>

#include <random>
#include <vector>

/// Damage to files of media, the same from the same numbers.
class Mutations
{
public:
    explicit Mutations(unsigned seed) : m_random(seed) {}

    /// One to four of: bits turned, an odd size, a cut, a piece lost, doubled or empty, two pieces
    /// or two of the boxes that containers are made of exchanged.
    QByteArray Of(QByteArray file);

private:
    struct Piece
    {
        int place;
        int size;
    };

    int Below(int end) { return end > 1 ? int(m_random() % unsigned(end)) : 0; }
    /// Every second one is in the head, where most of what can be misunderstood is.
    int Place(const QByteArray& file);
    Piece AnyPiece(const QByteArray& file);
    /// Boxes: a size and four letters, or, for other containers, four letters and a size.
    static std::vector<Piece> Boxes(const QByteArray& file);
    void Change(QByteArray& file);
    void TurnBits(QByteArray& file);
    void WriteNumber(QByteArray& file);
    static void Exchange(QByteArray& file, Piece first, Piece second);

    std::mt19937 m_random;
};
