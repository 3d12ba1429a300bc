// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLELevels.h"
#include "EngineApi/INLETimeline.h"
#include "Host/Editor/Model/ProjectSteps.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <memory>

class NLETimeline;
class QUndoStack;

Q_DECLARE_METATYPE(NLEComPtr<INLETimeline>)

/// The project that is open: its timeline, its edits with undo and redo, and its file. There is
/// always one, an empty one at first. All changes of it go through here.
///
/// Signals come when a step is whole; slots may make the next one. What an open drag did becomes a
/// step before other steps and before file operations; undo takes it back first.
class Project : public QObject
{
    Q_OBJECT

public:
    /// What an edit does; what it gives is the engine's. It stands within a step and opens none.
    using EditCall = ProjectSteps::EditCall;
    /// What a change does; false when it could not.
    using ChangeCall = ProjectSteps::ChangeCall;

    explicit Project(QObject* parent = nullptr);
    /// Goes before the engine does.
    ~Project() override;

    /// False without an engine; then nothing else may be called.
    bool IsUsable() const;
    /// The top node, and the same in the library's wrapper; another one after Replaced().
    NLEComPtr<INLETimeline> Node() const { return m_node; }
    NLETimeline* Timeline() const { return m_timeline.get(); }
    INLEEditing& Editing() const { return *m_steps.Editing(); }
    /// Its levels; what changes them stands within an Edit(), as all edits do.
    NLEComPtr<INLELevels> Levels() const;
    /// Frames a second, above 0.
    double FrameRate() const;
    /// Frames that the project plays.
    int Length() const;

    // ---- Steps

    /// Edits, changes and their order; its texts name them for menus. A change of speed or rate
    /// empties it, as it does with the engine's history.
    QUndoStack& Steps() { return m_steps.Stack(); }
    /// One or more edits of clips as one step called \a text, all or none. False when the engine
    /// refuses one: Refused() has told why. What changes nothing is true and makes no step.
    bool Edit(const QString& text, const EditCall& edit);
    /// A drag is one step: each Drag() edits what was there at BeginDrag(). Of refused ones, which
    /// leave all as it was then, Refused() tells when the drag ends with one.
    void BeginDrag(const QString& text);
    /// \a otherwise is done, as the movement before, where \a edit is refused.
    bool Drag(const EditCall& edit, const EditCall& otherwise = {});
    void EndDrag();
    void CancelDrag();
    /// A change of \a node's properties, effects, parameters, key frames: \a redo is called at
    /// once, and both later by undo and redo. Changes of one node that follow each other with the
    /// same \a merge, other than 0, are one step (a drag of a value; NewMerge() gives a number for
    /// each). False when \a redo gave false: Refused() has told so.
    bool Change(const QString& text, const NLEComPtr<INLETimeline>& node, ChangeCall redo,
                ChangeCall undo, int merge = 0);
    int NewMerge() { return ++m_lastMerge; }
    /// Within the calls of a Change(): \a node has changed as well.
    void NoteChange(const NLEComPtr<INLETimeline>& node) { m_steps.NoteNode(node); }

    // ---- File; false when it fails, as Refused() has told, and then nothing has changed

    bool New(const tagNLEProjectProfile& profile);
    /// The suffix chooses the format, as the engine's documents have it.
    bool Open(const QString& path);
    /// Opens \a document as what was not saved of \a path, which may be empty.
    bool Recover(const QString& document, const QString& path);
    /// False as well while there is no path.
    bool Save();
    bool SaveAs(const QString& path);
    /// Writes a copy; path and modified state stay.
    bool SaveCopy(const QString& path);
    /// Empty before the first save.
    QString Path() const { return m_path; }
    bool IsModified() const { return !m_steps.Stack().isClean(); }
    /// What the file that was opened last holds and the project lacks, for people.
    QStringList Remarks() const { return m_remarks; }

Q_SIGNALS:
    /// Another project is open; nodes of the former one are of no use any more.
    void Replaced();
    /// Clips were placed, changed or removed by an edit, undo or redo; none where something was set
    /// for levels.
    void ClipsChanged(const QVector<NLEComPtr<INLETimeline>>& clips);
    /// Something else about \a node changed (as Change() names it).
    void NodeChanged(const NLEComPtr<INLETimeline>& node);
    void PathChanged();
    /// The project is about to be written into the file \a path as its own: the last moment for
    /// what documents keep.
    void Saving(const QString& path);
    void ModifiedChanged(bool modified);
    /// An edit, a change or a file operation failed; \a reason is for people.
    void Refused(const QString& reason);
    /// The last movement of a drag failed, for another reason than the one before; empty when one
    /// did not fail again.
    void DragRefused(const QString& reason);

private:
    NLEComPtr<INLETimeline> Load(const QString& path);
    bool Adopt(const NLEComPtr<INLETimeline>& node, const QString& action, const QString& path);
    bool Write(const QString& path);
    bool Refuse(const QString& reason);
    void SetPath(const QString& path);
    void TellModified();

    const NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLETimeline> m_node;
    std::unique_ptr<NLETimeline> m_timeline;
    ProjectSteps m_steps;
    QString m_path;
    QStringList m_remarks;
    int m_lastMerge = 0;
    bool m_toldModified = false;
};
