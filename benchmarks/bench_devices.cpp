// SPDX-License-Identifier: LGPL-2.1-or-later
// A folder as a portable device: walking 20,000 objects beside the file system's own walk, and
// copying a file of 1 GiB beside cp. Rounds are interleaved; figures are medians.
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "benchmarks/Measure.h"
#include "benchmarks/Report.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <cstdio>
#include <cwchar>
#include <filesystem>
#include <functional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kObjects = 20000;
constexpr qint64 kFileSize = 1LL << 30;
constexpr int kRounds = 5;

// \a prepare is not timed.
double SecondsOf(const std::function<void()>& prepare, const std::function<bool()>& run)
{
    prepare();
    return Seconds([&] {
        if (!run())
            std::fprintf(stderr, "failed\n");
    });
}

void Compare(const char* subject, const Peer& peer, const std::function<void()>& prepare,
             const std::function<bool()>& ours, const std::function<bool()>& theirs)
{
    std::vector<double> our;
    std::vector<double> their;
    for (int round = 0; round < kRounds; ++round) {
        if (round % 2 == 0)
            our.push_back(SecondsOf(prepare, ours));
        their.push_back(SecondsOf(prepare, theirs));
        if (round % 2 != 0)
            our.push_back(SecondsOf(prepare, ours));
    }
    Report(subject, Median(our), {peer.kind, peer.name, Median(their)});
}

struct Walk
{
    int objects = 0;
    std::wstring large; // identifier of the file to copy
};

// Goes into every folder.
std::int64_t OnDevice(HWND /*window*/, std::uint32_t /*message*/, std::uint64_t code,
                      std::int64_t value, void* user)
{
    if (code != WpdObjectRead)
        return 0;
    auto& walk = *static_cast<Walk*>(user);
    auto& record = *reinterpret_cast<WpdObjectRecord*>(value);
    ++walk.objects;
    if (std::wcscmp(record.originalFileName, L"large") == 0)
        walk.large = record.objectId;
    record.descend = record.isFolder;
    return 0;
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
    Walk walk;
    WpdApiLib::SetCallbackProc(&OnDevice, &walk);
    const std::wstring id =
        QString::fromLatin1(QUrl::fromLocalFile(folder).toEncoded()).toStdWString();
    if (!WpdApiLib::ChooseDevice(id.c_str(), nullptr)) {
        std::fprintf(stderr, "cannot open the folder as a device\n");
        return 1;
    }
    Compare(
        "walking 20,000 objects", Bare("std::filesystem"), [] {},
        [&] {
            walk.objects = 0;
            return WpdApiLib::EnumerateAllContent() && walk.objects > kObjects;
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
    const std::wstring path = target.toStdWString();
    Compare(
        "copying 1 GiB", Other("cp"),
        [&] {
            // What one copy leaves to be written would hold up the next one.
            QFile::remove(target);
            ::sync();
        },
        [&] {
            return WpdApiLib::TransferContentFromDevice(walk.large.c_str(), path.c_str(), 0) == 1;
        },
        [&] {
            return QProcess::execute("cp", {folder + "/large", target}) == 0;
        });
    WpdApiLib::UnregisterForEventNotifications();
    return 0;
}
