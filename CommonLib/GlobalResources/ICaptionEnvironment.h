// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QList>
#include <QString>

struct INLEFactory;

/// A font that captions can be rendered with.
struct CaptionFont
{
    QString name;   ///< as the engine reports it
    QString family; ///< under which Qt knows it; the name itself when it does not
};

/// The engine's font library, set up with the fonts that the editor's menus offer.
///
/// The first GetInstance() gives the engine the folder "Fonts/" of the module folders with the
/// cache file "Cache.xml" in it, registers that folder's fonts with Qt and lists what the engine
/// has. Without an engine, or without its font library, the list is empty and stays so.
///
/// Needs a QGuiApplication. For the GUI thread only; created without a lock.
class COMMONLIB_EXPORT ICaptionEnvironment
{
public:
    ICaptionEnvironment();
    ICaptionEnvironment(const ICaptionEnvironment& other);
    ICaptionEnvironment& operator=(const ICaptionEnvironment& other);

    /// The one instance; the first call creates it.
    static ICaptionEnvironment* GetInstance();

    // The order of the virtual operations is fixed.

    /// Destroys the instance, if there is one; GetInstance() starts afresh. Every engine object
    /// that came from it must be gone, and CVCreateInstance's instance still be there.
    virtual void Release() = 0;
    /// The engine's root factory without a new reference; null when there is none.
    virtual INLEFactory* GetFactory() = 0;
    /// The fonts, sorted by name. The list lives as long as the instance, its records until the
    /// next AddFonts() or AddSystemFonts().
    virtual const QList<CaptionFont*>* GetFonts() = 0;
    /// Adds the fonts of a folder. Nothing happens when it does not exist.
    virtual void AddFonts(const QString& folder) = 0;
    /// Adds the fonts of the system.
    virtual void AddSystemFonts() = 0;
    virtual ~ICaptionEnvironment();
};
