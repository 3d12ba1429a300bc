// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEEditing.h"
#include "EngineApi/INLEFactory.h"
#include "EngineApi/INLETimeline.h"

#include <QObject>
#include <QUndoStack>
#include <QVector>

#include <functional>
#include <optional>

/// Edits and changes of a project in one order. What an edit did is in the engine's history, what a
/// change did in its two calls; the stack holds both, and keeps step with the engine.
class ProjectSteps : public QObject
{
    Q_OBJECT

public:
    using EditCall = std::function<HRESULT(INLEEditing&)>;
    using ChangeCall = std::function<bool()>;
    using Clips = QVector<NLEComPtr<INLETimeline>>;

    ProjectSteps(NLEComPtr<INLEFactory> factory, QObject* parent);

    /// Begins afresh with another project, unmodified.
    void Begin(NLEComPtr<INLEEditing> editing);
    /// Null before Begin().
    INLEEditing* Editing() const { return m_editing.get(); }
    QUndoStack& Stack() { return m_stack; }
    const QUndoStack& Stack() const { return m_stack; }

    // As those of Project.
    bool Edit(const QString& text, const EditCall& edit);
    void BeginDrag(const QString& text);
    bool Drag(const EditCall& edit, const EditCall& otherwise);
    void EndDrag();
    void CancelDrag();
    bool Change(const QString& text, const NLEComPtr<INLETimeline>& node, ChangeCall redo,
                ChangeCall undo, int merge);

    // For the steps in the stack.
    /// Undoes or redoes an edit.
    void Move(HRESULT (INLEEditing::*move)());
    void NoteNode(const NLEComPtr<INLETimeline>& node);
    /// As CancelDrag(), and tells nothing yet.
    void DropDrag();
    /// Whether the stack is emptied to be filled again; what it says of itself does not count.
    bool IsForgetting() const { return m_isForgetting; }

Q_SIGNALS:
    void ClipsChanged(const QVector<NLEComPtr<INLETimeline>>& clips);
    void NodeChanged(const NLEComPtr<INLETimeline>& node);
    void Refused(const QString& reason);
    void DragRefused(const QString& reason);

private:
    struct OpenDrag
    {
        QString text;
        QString refusal; ///< of the last Drag(); empty when it was done
    };

    bool Try(const EditCall& edit);
    void CloseStep(const QString& text);
    void NoteClips();
    void Tell();
    int CountEdits(int first, int last) const;
    void ForgetLost();

    const NLEComPtr<INLEFactory> m_factory;
    NLEComPtr<INLEEditing> m_editing;
    QUndoStack m_stack;
    std::optional<OpenDrag> m_drag;

    // What is still to be told.
    std::optional<Clips> m_clips;
    Clips m_nodes;
    bool m_isForgetting = false;
};
