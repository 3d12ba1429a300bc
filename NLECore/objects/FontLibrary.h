// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/ComObject.h"
#include "EngineApi/INLEFactory.h"

#include <QSet>
#include <QStringList>

namespace nle {

/// The font library. A font's name is the family under which text clips find it; each is listed
/// once. The files behind the names are the engine's, shared by all font libraries.
class FontLibrary final : public ComObject<INLEFontLibrary>
{
public:
    HRESULT SetCacheFile(const wchar_t* path) override;
    /// E_FAIL when there is no such folder.
    HRESULT SetFontFolder(const wchar_t* folder) override;
    /// E_FAIL when there is no such folder.
    HRESULT AddFontFolder(const wchar_t* folder) override;
    HRESULT LoadSystemFonts() override;
    HRESULT GetFontCount(int* count) override;
    HRESULT GetFontName(int index, wchar_t* buffer, int capacity) override;

private:
    void Add(const QStringList& families);

    QStringList m_names;
    QSet<QString> m_known; ///< the same names
};

} // namespace nle
