// SPDX-License-Identifier: LGPL-2.1-or-later
// Archives: nothing is written outside of the folder that they are unpacked into.
#include "CommonLib/QuaZipOperate.h"
#include "Fuzz.h"

#include <QDir>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QDir own(fuzz::Folder());
    const QString target = own.filePath(QStringLiteral("in/target"));
    const QString path =
        fuzz::Write("archive.zip", QByteArray(reinterpret_cast<const char*>(data), int(size)));
    own.mkpath(target);
    for (const QString& entry : QuaZipOperate::ExtractDir(path, target))
        fuzz::Require(entry.startsWith(target), "entries lie in the target");
    const auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    fuzz::Require(own.entryList(everything).size() == 2, "nothing beside the archive");
    const QStringList beside = QDir(own.filePath(QStringLiteral("in"))).entryList(everything);
    fuzz::Require(beside == QStringList(QStringLiteral("target")), "nothing beside the target");
    QDir(target).removeRecursively();
    return 0;
}
