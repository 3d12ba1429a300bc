// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Mutations.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int kHead = 4096;

bool IsName(const char* letters)
{
    return std::all_of(letters, letters + 4, [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
    });
}

} // namespace

QByteArray Mutations::Of(QByteArray file)
{
    for (int changes = 1 + Below(4); changes > 0 && !file.isEmpty(); --changes)
        Change(file);
    return file;
}

int Mutations::Place(const QByteArray& file)
{
    const int size = int(file.size());
    return Below(Below(2) == 0 ? std::min(size, kHead) : size);
}

Mutations::Piece Mutations::AnyPiece(const QByteArray& file)
{
    const int place = Place(file);
    return {place, std::min(int(file.size()) - place, 1 + Below(1 << Below(16)))};
}

std::vector<Mutations::Piece> Mutations::Boxes(const QByteArray& file)
{
    std::vector<Piece> boxes;
    for (int place = 4; place + 8 < file.size(); ++place) {
        if (!IsName(file.constData() + place))
            continue;
        const auto before = qFromBigEndian<quint32>(file.constData() + place - 4);
        const auto after = qFromLittleEndian<quint32>(file.constData() + place + 4);
        if (before >= 8 && before <= quint32(file.size() - place + 4))
            boxes.push_back({place - 4, int(before)});
        else if (after <= quint32(file.size() - place - 8))
            boxes.push_back({place, int(after) + 8});
    }
    return boxes;
}

void Mutations::Change(QByteArray& file)
{
    const Piece piece = AnyPiece(file);
    switch (Below(8)) {
    case 0:
        return TurnBits(file);
    case 1:
        return WriteNumber(file);
    case 2:
        return file.truncate(piece.place);
    case 3:
        file.remove(piece.place, piece.size);
        return;
    case 4:
        file.insert(Place(file), file.mid(piece.place, piece.size));
        return;
    case 5:
        std::fill_n(file.begin() + piece.place, piece.size, '\0');
        return;
    case 6:
        return Exchange(file, piece, AnyPiece(file));
    default:
        const std::vector<Piece> boxes = Boxes(file);
        if (boxes.empty())
            return TurnBits(file);
        Exchange(file, boxes[std::size_t(Below(int(boxes.size())))],
                 boxes[std::size_t(Below(int(boxes.size())))]);
    }
}

void Mutations::TurnBits(QByteArray& file)
{
    for (int bits = 1 << Below(8); bits > 0; --bits) {
        const int place = Place(file);
        file[place] = char(file[place] ^ (1 << Below(8)));
    }
}

void Mutations::WriteNumber(QByteArray& file)
{
    static constexpr quint32 numbers[] = {0,       1,          0x7FFF,     0xFFFF,
                                          0x10000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    const quint32 number = numbers[Below(int(std::size(numbers)))];
    const int place = std::max(0, std::min(Place(file), int(file.size()) - 4));
    const QByteArray bytes(reinterpret_cast<const char*>(&number), 1 << Below(3));
    file.replace(place, bytes.size(), bytes);
}

// One inside of the other stays.
void Mutations::Exchange(QByteArray& file, Piece first, Piece second)
{
    if (first.place > second.place)
        std::swap(first, second);
    if (first.place + first.size > second.place)
        return;
    const QByteArray moved = file.mid(second.place, second.size);
    file.replace(second.place, second.size, file.mid(first.place, first.size));
    file.replace(first.place, first.size, moved);
}
