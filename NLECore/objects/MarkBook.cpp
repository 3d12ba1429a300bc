// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/MarkBook.h"

#include "Com/WideText.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/MediaObjects.h"
#include "NLECore/model/PropertyBag.h"
#include "NLECore/scene/FrameMath.h"

#include <QFileInfo>

namespace nle {

namespace {

constexpr NLERational kSoundRate = {25, 1};

HRESULT OpenCueSheet(const QString& path, INLEMarkBook** book)
{
    const std::vector<CueFile> sheet = ReadCueSheet(path);
    if (sheet.empty()) {
        const bool isThere = QFileInfo::exists(path);
        return Refuse(E_FAIL, isThere ? NLEReason_FileUnsupported : NLEReason_FileMissing,
                      path + QStringLiteral(": no cue sheet"));
    }
    const QString file = MediaOfCueSheet(path, sheet.front());
    const auto media = file.isEmpty() ? nullptr : DescribeFile(file);
    return GiveNew<MarkBook>(book, MarksOf(sheet.front()), media ? media->frameRate : kSoundRate);
}

} // namespace

HRESULT MarkBook::Open(const QString& path, INLEMarkBook** book)
{
    if (IsCueSheet(path))
        return OpenCueSheet(path, book);
    const auto media = DescribeFile(path);
    return media ? GiveNew<MarkBook>(book, ReadMarks(*media), media->frameRate) : Refuse(E_FAIL);
}

HRESULT MarkBook::GetMarkCount(int* count)
{
    return GiveValue(count, int(m_marks.size()));
}

HRESULT MarkBook::GetMark(int index, int* frame, wchar_t* name, int capacity)
{
    return ComGuard([&] {
        if (!frame)
            return Refuse(E_POINTER);
        if (index < 0 || index >= int(m_marks.size()))
            return RefuseIndex(index, std::int64_t(m_marks.size()));
        const FileMark& mark = m_marks[size_t(index)];
        constexpr NLERational microseconds = {1000000, 1};
        *frame = FrameTime{double(mark.timeUs), microseconds}.NearestAt(m_rate);
        return capacity == 0 ? S_OK : CopyText(ToWide(mark.name), name, capacity);
    });
}

} // namespace nle
