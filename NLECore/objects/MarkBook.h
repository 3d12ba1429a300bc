// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"
#include "NLECore/media/FileMarks.h"

#include <optional>

namespace nle {

/// The marks of one file.
class MarkBook final : public ComObject<INLEMarkBook>
{
public:
    /// What CreateMarkBook gives: E_FAIL for a file that cannot be read.
    static HRESULT Open(const QString& path, INLEMarkBook** book);

    MarkBook(std::vector<FileMark> marks, const NLERational& rate)
        : m_marks(std::move(marks)), m_rate(rate)
    {
    }

    HRESULT GetMarkCount(int* count) override;
    HRESULT GetMark(int index, int* frame, wchar_t* name, int capacity) override;

private:
    const std::vector<FileMark> m_marks;
    const NLERational m_rate; ///< that frames are counted at
};

} // namespace nle
