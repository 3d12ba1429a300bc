// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/CBSUrlReader.h"

#include "Com/WideText.h"
#include "CommonLib/ModuleErrors_p.h"
#include "CommonLib/ModuleFolders_p.h"
#include "CommonLib/PathOperation.h"

#include <QLibrary>

#include <array>

namespace {

constexpr int kCapacity = 256; // wide characters, the terminating zero included

using LoadFunction = int (*)(const wchar_t* path);
using ReadFunction = int (*)(const wchar_t* name, const wchar_t* group, wchar_t* buffer,
                             int capacity, int reserved1, int reserved2);

template <typename Function>
Function Resolve(const std::unique_ptr<QLibrary>& module, const char* name)
{
    return module ? reinterpret_cast<Function>(module->resolve(name)) : nullptr;
}

} // namespace

CBSUrlReader::CBSUrlReader(QObject* parent) : QObject(parent)
{
    Init();
}

CBSUrlReader::~CBSUrlReader()
{
    if (m_module)
        m_module->unload();
}

void CBSUrlReader::Init()
{
    LoadUtilitiesLib();
    LoadXmlFile();
}

bool CBSUrlReader::LoadUtilitiesLib()
{
    if (m_module)
        return true;
    auto module = std::make_unique<QLibrary>(FindModule("CVUtilities.dll"));
    const bool isLoaded = module->load();
    NoteModule(*module);
    if (isLoaded)
        m_module = std::move(module);
    return m_module != nullptr;
}

bool CBSUrlReader::LoadXmlFile()
{
    const auto load = Resolve<LoadFunction>(m_module, "LoadCustomizeXMLFileW");
    if (!load)
        return false;
    return load(ToWide(PathOperation::MakeWorkPath("Customization.xml")).c_str()) != 0;
}

QString CBSUrlReader::ReadCustomerUrl(const QString& first, const QString& second)
{
    const auto read = Resolve<ReadFunction>(m_module, "ReadCustomizeInfoW");
    if (!read)
        return QString();
    // A module that succeeds without writing anything gives "0". Kept: see docs/compatibility.md.
    std::array<wchar_t, kCapacity> buffer{L'0'};
    // The order is crossed: the function takes the name within the group first.
    if (read(ToWide(second).c_str(), ToWide(first).c_str(), buffer.data(), kCapacity, 0, 0) == 0)
        return QString();
    return FromWide(buffer);
}
