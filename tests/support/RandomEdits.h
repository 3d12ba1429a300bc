// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Model/Project.h"
#include "tests/support/EngineFixture.h"

#include <QUndoStack>

#include <random>

/// Somebody who edits a project at random: places, moves and splits colours, undoes, redoes, and
/// saves at times what has a file.
class RandomEdits
{
public:
    RandomEdits(Project& project, std::mt19937& random) : m_project(project), m_random(random) {}

    int Any(int least, int most) { return std::uniform_int_distribution<>(least, most)(m_random); }
    void Act()
    {
        const int kind = Any(0, 19);
        const int count = EngineFixture::ClipCount(m_project.Node());
        if (kind == 0)
            m_project.Save();
        else if (kind < 4)
            m_project.Steps().undo();
        else if (kind < 6)
            m_project.Steps().redo();
        else if (kind < 12 || count == 0)
            Place();
        else
            Change(EngineFixture::ClipAt(m_project.Node(), Any(0, count - 1)), kind < 16);
    }

private:
    static constexpr int kFrames = 50;
    static constexpr int kLevels = 3;

    void Place()
    {
        auto* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        const Node clip = provider->CreateColorTimeline(Qt::red, QSize(320, 180), 25);
        const NLERange range = {0, Any(1, kFrames) - 1};
        clip->SetRange(&range);
        m_project.Edit("Place", [&](INLEEditing& editing) {
            return editing.Place(clip.get(), Any(0, 20 * kFrames), Any(0, kLevels - 1),
                                 NLEEdit_Alone);
        });
    }
    void Change(const Node& clip, bool moves)
    {
        int position = 0;
        clip->GetPosition(&position);
        const int frame = position + Any(1, kFrames);
        m_project.Edit("Change", [&](INLEEditing& editing) {
            return moves ? editing.Move(clip.get(), frame, Any(0, kLevels - 1), NLEEdit_Alone)
                         : editing.Split(clip.get(), frame, NLEEdit_Alone);
        });
    }

    Project& m_project;
    std::mt19937& m_random;
};
