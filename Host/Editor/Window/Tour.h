// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLETimeline.h"

#include <QStringList>

#include <functional>

class EditorWindow;

/// Makes a small film in the window by itself. What it leaves in a folder: a picture of the window
/// after each step, the project, the film, and a report of how long each step took.
class Tour
{
public:
    /// Of \a media the first and the last one are used that can be read. The window outlives the
    /// tour.
    Tour(EditorWindow& window, const QString& folder, const QStringList& media);

    /// Processes events while it waits. False when a step failed, which ends it; the report, also
    /// printed, says which.
    bool Run();

private:
    struct Step
    {
        const char* name;
        bool (Tour::*run)();
    };

    bool Import();
    bool Arrange();
    bool Split();
    bool AddTitle();
    bool AddTransition();
    bool AddEffect();
    bool Animate();
    bool Undo();
    bool RenderPreview();
    bool Play();
    bool Save();
    bool Export();

    bool Place(const QString& path, int position, int level);
    bool Await(const std::function<bool()>& isDone) const;
    QString Path(const QString& name) const;
    bool Picture(int number, const char* name) const;

    EditorWindow& m_window;
    const QString m_folder;
    QStringList m_media;
    QVector<NLEComPtr<INLETimeline>> m_clips; ///< in the order in which they were placed
};
