// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QDomDocument>
#include <QDomElement>
#include <QIODevice>
#include <QString>

/// Operations on XML files and on documents held in memory.
///
/// Files are written in the encoding that the document declares, else in UTF-8, indented by four
/// spaces per level. A copy of an element is the same element: the document owns it.
class COMMONLIB_EXPORT XmlOperation
{
public:
    /// Writes a document with an empty root element. A file that exists is left as it is; nothing
    /// happens when the file cannot be opened.
    static void CreateXmlFile(const QString& path, const QString& rootName);

    /// Reads a whole file into \a document, without namespace processing. A document of many small
    /// elements takes about fifty times the memory of its file.
    ///
    /// \param mode how to open the file; must allow reading for the call to succeed
    /// \return false, and a null \a document, when the file is not well-formed XML 1.0, has a
    ///         name with two colons, is nested deeper than 1,000 levels, or declares entities that
    ///         expand to more than 1,024 characters or that stand in a file of more than 128 KiB.
    ///         False, and \a document as it was, when the file cannot be opened or is no regular
    ///         file
    static bool OpenXmlFile(QDomDocument& document, const QString& path, QIODevice::OpenMode mode);

    /// Writes the document, replacing the file. Nothing happens when it cannot be opened.
    static void SaveXmlContent2File(const QDomDocument& document, const QString& path);

    /// Appends a new element with one text child, which may be empty, to \a parent and gives it.
    static QDomElement AddXmlElement(QDomDocument& document, QDomElement parent,
                                     const QString& name, const QString& text);

    /// The first element of that tag name below \a element, at any depth, in document order; a null
    /// element when there is none.
    static QDomElement GetChildElement(const QDomElement& element, const QString& name);

    /// Replaces the text of \a element and keeps the elements in it. Of several text nodes in a row
    /// every second one stays; the new text comes last.
    static void SetElemmentText(QDomDocument& document, QDomElement element, const QString& text);
};
