// SPDX-License-Identifier: LGPL-2.1-or-later
// Runs a target where libFuzzer is not there:
//
//     fuzz_<subject> FOLDER [RUNS] [SEED]
//
// gives it the files of the folder, then so many changed copies of them. The seed is printed and
// gives the same copies again.
#include "Fuzz.h"
#include "Tokens.h"

#include <QDir>
#include <QVector>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

using Random = std::minstd_rand;

constexpr int kLongestInput = 1 << 16;
constexpr int kMostChanges = 8;

int Below(Random& random, int end)
{
    return end > 0 ? int(random() % unsigned(end)) : 0;
}

QVector<QByteArray> ReadCorpus(const QString& folder)
{
    QVector<QByteArray> inputs;
    const QDir directory(folder);
    for (const QString& name : directory.entryList(QDir::Files, QDir::Name)) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            inputs << file.readAll();
    }
    return inputs;
}

void Change(QByteArray& input, const QByteArray& other, Random& random)
{
    const int place = Below(random, input.size() + 1);
    const int length = 1 + Below(random, 32);
    switch (Below(random, 7)) {
    case 0: // a bit
        if (place < input.size())
            input[place] = char(input[place] ^ (1 << Below(random, 8)));
        break;
    case 1: // a byte
        if (place < input.size())
            input[place] = char(Below(random, 256));
        break;
    case 2:
        input.remove(place, length);
        break;
    case 3: // of its own
        input.insert(place, input.mid(Below(random, input.size()), length));
        break;
    case 4: // of another one
        input.replace(place, length, other.mid(Below(random, other.size()), length));
        break;
    case 5:
        input = fuzz::ChangeTokens(input, random);
        break;
    default: {
        static const char* const kNumbers[] = {"0", "-1", "2147483648", "1e308", "nan", "0.00001"};
        input.insert(place, kNumbers[Below(random, int(std::size(kNumbers)))]);
    }
    }
}

void Give(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           std::size_t(input.size()));
}

} // namespace

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FOLDER [RUNS] [SEED]\n", argv[0]);
        return 2;
    }
    const QVector<QByteArray> corpus = ReadCorpus(QString::fromLocal8Bit(argv[1]));
    if (corpus.isEmpty()) {
        std::fprintf(stderr, "no inputs in %s\n", argv[1]);
        return 2;
    }
    const long runs = argc > 2 ? std::atol(argv[2]) : 0;
    const unsigned seed = argc > 3 ? unsigned(std::atol(argv[3])) : 1;
    std::printf("%d inputs, %ld changed ones of seed %u\n", int(corpus.size()), runs, seed);
    std::fflush(stdout);
    std::for_each(corpus.begin(), corpus.end(), Give);
    Random random(seed);
    for (long run = 0; run < runs; ++run) {
        QByteArray input = corpus[Below(random, corpus.size())];
        for (int changes = 1 + Below(random, kMostChanges); changes > 0; --changes)
            Change(input, corpus[Below(random, corpus.size())], random);
        Give(input.left(kLongestInput));
    }
    return 0;
}
