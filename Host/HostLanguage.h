// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/LangConstInfo.h"

#include <QCommandLineOption>
#include <QLocale>
#include <QString>

class QCommandLineParser;

/// The language of a program of the host, from its construction, right after the application
/// object's, to its end: the one that was chosen last, or the one that the command line names.
///
/// It stands before any other text, so the command line is looked at on its own for this option.
class HostLanguage
{
public:
    HostLanguage();
    ~HostLanguage();
    HostLanguage(const HostLanguage&) = delete;
    HostLanguage& operator=(const HostLanguage&) = delete;

    /// Selects a language, makes its way to write numbers and dates the default one, and tells the
    /// library which way it is read. Windows that are open keep the locale they have.
    static void Select(Language_Locale locale);
    /// How numbers and dates are written in the language of \a info.
    static QLocale LocaleOf(const LangConstInfo& info);

    /// For the program's own parser, which then knows the option and describes it.
    static QCommandLineOption Option();
    /// What to tell the user when \a parser was given a language that there is not; else empty.
    static QString Complaint(const QCommandLineParser& parser);
};
