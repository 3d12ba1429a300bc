// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDomDocument>

/// A document with the declaration of version 1.0 in UTF-8 and an empty root element. Not part of
/// the library's interface.
QDomDocument NewXmlDocument(const QString& rootName);
