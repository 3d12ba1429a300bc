// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QVector>

class QWidget;

/// A page of the gallery.
struct GalleryPage
{
    /// What a command line calls it, and the base name of its picture.
    const char* name;
    /// Shown in the list and above the page; in the translation context "Gallery".
    const char* title;
    /// What there is to try.
    const char* hint;
    QWidget* (*make)(QWidget* parent);
};

/// All pages, in the order of the list.
const QVector<GalleryPage>& GalleryPages();
