// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/NLEWraper/CVCreateInstance.h"

#include "Com/ClassFactory.h"
#include "CommonLib/ModuleErrors_p.h"
#include "CommonLib/ModuleFolders_p.h"

#include <QLibrary>

namespace {
CVCreateInstance* s_instance = nullptr;
}

CVCreateInstance::CVCreateInstance() = default;

CVCreateInstance::~CVCreateInstance()
{
    if (!m_module)
        return;
    const auto end =
        reinterpret_cast<DllCanUnloadNowFunction>(m_module->resolve("DllCanUnloadNow"));
    if (end)
        end();
    m_module->unload();
}

CVCreateInstance* CVCreateInstance::Instance()
{
    if (!s_instance)
        s_instance = new CVCreateInstance;
    return s_instance;
}

void CVCreateInstance::Release()
{
    s_instance = nullptr;
    delete this;
}

bool CVCreateInstance::Load()
{
    if (m_module)
        return true;
    auto module = std::make_unique<QLibrary>(FindModule("NLECore.dll"));
    const bool isLoaded = module->load();
    NoteModule(*module);
    if (!isLoaded)
        return false;
    m_module = std::move(module);
    return true;
}

bool CVCreateInstance::cvCreateInstance(const _GUID& classId, IUnknown* outer,
                                        unsigned long /*context*/, const _GUID& iid, void** out)
{
    if (!out)
        return false;
    *out = nullptr;
    if (!Load())
        return false;
    const auto getClassObject =
        reinterpret_cast<DllGetClassObjectFunction>(m_module->resolve("DllGetClassObject"));
    if (!getClassObject)
        return false;
    CreateThrough(getClassObject, classId, outer, iid, out);
    return *out != nullptr;
}
