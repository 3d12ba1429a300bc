// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "CommonLib/GlobalResources/ICaptionEnvironment.h"
#include "EngineApi/INLEFactory.h"

class CaptionEnvironment : public ICaptionEnvironment
{
public:
    CaptionEnvironment();
    CaptionEnvironment(const CaptionEnvironment&) = delete;
    CaptionEnvironment& operator=(const CaptionEnvironment&) = delete;

    void Release() override;
    INLEFactory* GetFactory() override;
    const QList<CaptionFont*>* GetFonts() override;
    void AddFonts(const QString& folder) override;
    void AddSystemFonts() override;
    ~CaptionEnvironment() override;

private:
    void InitFontFolder();
    void InitSystemFont();
    void ClearFonts();

    NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLEFontLibrary> m_library;
    QList<CaptionFont*> m_fonts; ///< owned records
};
