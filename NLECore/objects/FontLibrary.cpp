// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/FontLibrary.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/FontFiles.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/model/PropertyBag.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>

#include <algorithm>

namespace nle {

HRESULT FontLibrary::SetCacheFile(const wchar_t* path)
{
    return ComGuard([&] {
        if (!path)
            return Refuse(E_POINTER);
        Fonts().SetCacheFile(FromWide(path));
        return S_OK;
    });
}

HRESULT FontLibrary::SetFontFolder(const wchar_t* folder)
{
    m_names.clear();
    m_known.clear();
    return AddFontFolder(folder);
}

HRESULT FontLibrary::AddFontFolder(const wchar_t* folder)
{
    return ComGuard([&] {
        if (!folder)
            return Refuse(E_POINTER);
        const QString path = FromWide(folder);
        if (!QFileInfo(path).isDir())
            return Refuse(E_FAIL, NLEReason_FileMissing, path);
        Add(Fonts().Scan(path));
        return S_OK;
    });
}

HRESULT FontLibrary::LoadSystemFonts()
{
    return ComGuard([&] {
        if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
            return Refuse(E_FAIL, NLEReason_WrongState, QStringLiteral("no QGuiApplication"));
        const QFontDatabase database;
        QStringList families = database.families();
        families.erase(std::remove_if(families.begin(), families.end(),
                                      [&database](const QString& family) {
                                          return database.isPrivateFamily(family);
                                      }),
                       families.end());
        Add(families);
        return S_OK;
    });
}

HRESULT FontLibrary::GetFontCount(int* count)
{
    return GiveValue(count, int(m_names.size()));
}

HRESULT FontLibrary::GetFontName(int index, wchar_t* buffer, int capacity)
{
    return ComGuard([&] {
        if (index < 0 || index >= m_names.size())
            return RefuseIndex(index, m_names.size());
        return CopyText(m_names[index].toStdWString(), buffer, capacity);
    });
}

void FontLibrary::Add(const QStringList& families)
{
    for (const QString& family : families) {
        if (m_known.contains(family))
            continue;
        m_known.insert(family);
        m_names.append(family);
    }
}

} // namespace nle
