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
    /// elements takes about fifty times the memory of its file. White space between elements is
    /// layout and left out, unless it stands in a section or a part of it is a character reference.
    /// The versions after 1.0 are read as if they were that.
    ///
    /// \param mode how to open the file; must allow reading for the call to succeed
    /// \return false, and a null \a document, when the file is not well-formed XML, is larger than
    ///         1 GiB, has a name with two colons, is nested deeper than 1,000 levels, or would grow
    ///         by more than 16 million characters through references to entities that it declares
    ///         or by more than two million attributes with default values, which are not read.
    ///         False, and \a document as it was, when the file cannot be opened or is no regular
    ///         file
    static bool OpenXmlFile(QDomDocument& document, const QString& path, QIODevice::OpenMode mode);

    /// Writes the document, replacing the file. Nothing happens when it cannot be opened, and the
    /// file stays as it is when more than 1 GiB would be written. Takes the memory of the file
    /// beside that of the document.
    ///
    /// OpenXmlFile() can read any file that has been written from a document with a root element:
    /// - Characters that XML cannot hold (control characters, lone surrogates, U+FFFE, U+FFFF) are
    ///   left out; in names they become "_", like all that a name cannot have. Of attributes whose
    ///   names become the same one stays.
    /// - In texts and attributes a character that the declared encoding lacks becomes a reference;
    ///   in comments and instructions it becomes "?". A section that cannot hold its text becomes
    ///   a text.
    /// - "--" in a comment and "?>" in an instruction are parted by a space, and carriage returns
    ///   in them become line feeds.
    /// - Elements nested deeper than 1,000 levels, undeclared entities and a document type or a
    ///   further root element that would make the file unreadable are left out. In place of such a
    ///   declaration stands one of UTF-8.
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
