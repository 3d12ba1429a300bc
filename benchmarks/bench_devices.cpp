// SPDX-License-Identifier: LGPL-2.1-or-later
// The portable-device service on a folder: walking 20,000 objects beside the file system's own
// walk, and copying a file of 1 GiB beside cp. Rounds are interleaved; figures are medians.
#include "tests/support/DeviceClient.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <unistd.h>

namespace {

constexpr int kObjects = 20000;
constexpr qint64 kFileSize = 1LL << 30;
constexpr int kRounds = 5;

double Seconds(const std::function<bool()>& run)
{
    QElapsedTimer timer;
    timer.start();
    if (!run())
        std::fprintf(stderr, "failed\n");
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

void Compare(const char* subject, const char* peer, const std::function<bool()>& ours,
             const std::function<bool()>& theirs)
{
    std::vector<double> our;
    std::vector<double> their;
    for (int round = 0; round < kRounds; ++round) {
        if (round % 2 == 0)
            our.push_back(Seconds(ours));
        their.push_back(Seconds(theirs));
        if (round % 2 != 0)
            our.push_back(Seconds(ours));
    }
    std::printf("%s: %.3f s, %s %.3f s, speed ratio %.2f\n", subject, Median(our), peer,
                Median(their), Median(their) / Median(our));
}

// As an importer copies: one buffer of the size that the device asked for.
bool Copy(const DeviceClient::Device& device, const QString& id, const QByteArray& target)
{
    NLEComPtr<IStream> stream;
    DWORD size = 0;
    if (FAILED(device.resources->GetStream(id.toStdWString().c_str(), Wpd::WPD_RESOURCE_DEFAULT,
                                           STGM_READ, &size, stream.put())))
        return false;
    const int file = ::open(target.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    std::vector<char> buffer(size);
    ULONG count = 0;
    bool isGood = file >= 0;
    do {
        isGood = isGood && SUCCEEDED(stream->Read(buffer.data(), size, &count)) &&
                 ::write(file, buffer.data(), count) == static_cast<ssize_t>(count);
    } while (isGood && count > 0);
    ::close(file);
    return isGood;
}

bool MakeFiles(const QString& folder)
{
    bool isGood = QDir().mkpath(folder + "/many");
    for (int i = 0; i < kObjects && isGood; ++i)
        isGood = QFile(folder + "/many/" + QString::number(i)).open(QIODevice::WriteOnly);
    QFile large(folder + "/large");
    isGood = isGood && large.open(QIODevice::WriteOnly);
    for (qint64 at = 0; at < kFileSize && isGood; at += 1 << 20)
        isGood = large.write(QByteArray(1 << 20, static_cast<char>(at >> 20))) == 1 << 20;
    return isGood;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir work;
    const QString folder = work.filePath("card");
    qputenv("COMMONLIB_DEVICE_FOLDERS", QFile::encodeName(folder));
    if (!MakeFiles(folder)) {
        std::fprintf(stderr, "cannot make the test files\n");
        return 1;
    }
    const DeviceClient::Device device(QString::fromLatin1(QUrl::fromLocalFile(folder).toEncoded()));
    if (FAILED(device.result)) {
        std::fprintf(stderr, "cannot open the folder as a device\n");
        return 1;
    }
    const QString id = device.tree()["card/large"].id;
    Compare(
        "walking 20,000 objects", "std::filesystem",
        [&] {
            int count = 0;
            device.walk(L"DEVICE", [&count](const DeviceClient::Object&) { ++count; });
            return count > kObjects;
        },
        [&] {
            std::uintmax_t bytes = 0;
            int count = 0;
            for (const auto& entry :
                 std::filesystem::recursive_directory_iterator(folder.toStdString())) {
                bytes += entry.is_regular_file() ? entry.file_size() : 0;
                static_cast<void>(entry.last_write_time());
                ++count;
            }
            return count > kObjects && bytes > 0;
        });
    const QString target = work.filePath("copy");
    Compare(
        "copying 1 GiB", "cp", [&] { return Copy(device, id, QFile::encodeName(target)); },
        [&] {
            return QProcess::execute("cp", {folder + "/large", target}) == 0;
        });
    return 0;
}
