// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/model/Editing.h"
#include "NLECore/model/MltWriter.h"
#include "NLECore/model/SourceNodes.h"
#include "NLECore/model/TransitionNode.h"

#include <QRegularExpression>

#include <map>
#include <tuple>

/// A project with an editing object, written and read as text: "A0+10@20 ~8+4 / B5+10@0" are clips
/// and transitions of level 0 and, behind the stroke, level 1: a letter, first frame, number of
/// frames and first frame of the material. Small letters are colours, the others files of 100
/// frames; "~" is a transition. Copies have the letter of their original.
class EditedProject
{
public:
    using Node = NLEComPtr<nle::TimelineNode>;
    static constexpr tagNLEProjectProfile kProfile = {{320, 180}, {25, 1}, 48000, 2, 3};
    static constexpr int kMaterial = 100;

    explicit EditedProject(const QString& text = {}) : project(MakeCom<nle::ProjectNode>(kProfile))
    {
        int level = 0;
        for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
            if (word == "/")
                ++level;
            else
                project->Adopt(Read(word, level));
        }
        editing = nle::Editing::Of(*project);
    }

    /// A clip that stands nowhere.
    static Node Clip(QChar letter, int in, int length)
    {
        auto media = std::make_shared<nle::MediaInfo>();
        media->kind = NLEMedia_Video;
        media->path = QString(letter) + ".mp4";
        media->frameCount = kMaterial;
        Node clip;
        if (letter.isLower())
            clip = MakeCom<nle::ColorClip>(0xFF000000u, NLESize{64, 48}, kProfile.frameRate);
        else
            clip = MakeCom<nle::MediaClip>(media);
        const NLERange range = {in, in + length - 1};
        clip->SetRange(&range);
        clip->Bag().SetString(L"letter", QString(letter).toStdWString().c_str());
        return clip;
    }
    static Node Dissolve(int length)
    {
        const Node dissolve = MakeCom<nle::TransitionNode>(*nle::FindTransition("dissolve"));
        const NLERange range = {0, length - 1};
        dissolve->SetRange(&range);
        dissolve->ChangeRate(kProfile.frameRate);
        dissolve->Bag().SetString(L"letter", L"~");
        return dissolve;
    }

    QString Text() const
    {
        std::map<std::tuple<int, int, QString>, QString> words;
        for (const Node& clip : project->Clips()) {
            words[{clip->Level(), clip->Position(), Letter(*clip)}] = Word(*clip);
        }
        QStringList text;
        int level = 0;
        for (const auto& [place, word] : words) {
            for (; level < std::get<0>(place); ++level)
                text << "/";
            text << word;
        }
        return text.join(' ');
    }
    /// As it is saved.
    QString Document() const
    {
        QString text;
        nle::MltWriter(text, QDir()).Write(*project);
        return text;
    }
    /// The first clip of that letter on a level; null when there is none.
    nle::TimelineNode* Find(QChar letter, int level = -1) const
    {
        nle::TimelineNode* found = nullptr;
        for (const Node& clip : project->Clips()) {
            if (Letter(*clip) == letter && (level < 0 || clip->Level() == level) &&
                (!found || clip->Position() < found->Position()))
                found = clip.get();
        }
        return found;
    }

    const NLEComPtr<nle::ProjectNode> project;
    NLEComPtr<nle::Editing> editing;

private:
    static QString Letter(const nle::TimelineNode& node)
    {
        return node.Bag().TextOrEmpty(L"letter");
    }
    static QString Word(const nle::TimelineNode& node)
    {
        const QString word = QString("%1%2+%3")
                                 .arg(Letter(node))
                                 .arg(node.Position())
                                 .arg(NLERangeLength(node.Range()));
        return node.IsTransition() ? word : word + QString("@%1").arg(node.Range().in);
    }
    static Node Read(const QString& word, int level)
    {
        const QStringList numbers = word.mid(1).split(QRegularExpression("[+@]"));
        const int length = numbers.value(1).toInt();
        const Node node =
            word[0] == '~' ? Dissolve(length) : Clip(word[0], numbers.value(2).toInt(), length);
        node->SetPlace({numbers.value(0).toInt(), level, node->Placement().range});
        return node;
    }
};
