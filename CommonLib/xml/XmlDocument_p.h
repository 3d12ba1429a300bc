// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QIODevice>

/// Reading and writing of XML documents.

/// Elements nested deeper than this, the root being level 1, are neither read nor written: much of
/// what Qt does with a document is recursive.
constexpr int kDeepestXmlLevel = 1000;

/// A document with the declaration of version 1.0 in UTF-8 and an empty root element.
QDomDocument NewXmlDocument(const QString& rootName);

/// Replaces what the document holds by what a file holds, without namespace processing. False when
/// that is no well-formed XML, is nested too deep or could grow too much by its entities; the
/// document then holds anything.
bool ReadXmlDocument(QDomDocument& document, QByteArray content);

/// Writes the document so that ReadXmlDocument() gives it back. What XML cannot hold is left out or
/// replaced as XmlOperation::SaveXmlContent2File() states.
void WriteXmlDocument(const QDomDocument& document, QIODevice& device);
