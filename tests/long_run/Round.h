// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QStringList>

#include <functional>
#include <random>

class EditorWindow;

/// What somebody does with the editor in half a minute, from one empty project to the next: the
/// tour (import, arrange, effects, undo, preview, play, save, export), documents of the other
/// format, edits at random, play at random, languages and looks, panels, dialogs and pages.
class Round
{
public:
    /// \a folder exists and takes what the round writes.
    Round(EditorWindow& window, const QString& folder, const QStringList& media, unsigned seed)
        : m_window(window), m_folder(folder), m_media(media), m_random(seed)
    {
    }
    /// What failed; null when nothing did. Handles events meanwhile.
    const char* Run(int number);

private:
    bool Exchange();
    void Edit();
    void Play();
    void Dress(int number);
    void LookAround();

    EditorWindow& m_window;
    const QString m_folder;
    const QStringList m_media;
    std::mt19937 m_random;
};
