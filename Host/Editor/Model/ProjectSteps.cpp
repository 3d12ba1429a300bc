// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/ProjectSteps.h"

#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"

#include <QUndoCommand>

#include <utility>

namespace {

constexpr int kMostSteps = 500;

/// An edit, which the engine's history holds.
class EditStep : public QUndoCommand
{
public:
    EditStep(const QString& text, ProjectSteps& steps) : QUndoCommand(text), m_steps(steps) {}

    void undo() override { m_steps.Move(&INLEEditing::Undo); }
    void redo() override
    {
        if (std::exchange(m_isDone, false))
            return;
        m_steps.Move(&INLEEditing::Redo);
    }

private:
    ProjectSteps& m_steps;
    bool m_isDone = true; ///< before it came into the stack
};

class ChangeStep : public QUndoCommand
{
public:
    using Call = ProjectSteps::ChangeCall;

    ChangeStep(const QString& text, ProjectSteps& steps, NLEComPtr<INLETimeline> node, Call redo,
               Call undo, int merge)
        : QUndoCommand(text)
        , m_steps(steps)
        , m_node(std::move(node))
        , m_redo(std::move(redo))
        , m_undo(std::move(undo))
        , m_merge(merge)
    {
    }

    void undo() override { Make(m_undo); }
    void redo() override
    {
        if (std::exchange(m_isDone, false))
            m_steps.NoteNode(m_node);
        else
            Make(m_redo);
    }
    int id() const override { return m_merge == 0 ? -1 : m_merge; }
    bool mergeWith(const QUndoCommand* command) override
    {
        // The same number means the same class.
        const auto* later = static_cast<const ChangeStep*>(command);
        if (later->m_node != m_node)
            return false;
        m_redo = later->m_redo;
        return true;
    }

private:
    void Make(const Call& call)
    {
        m_steps.DropDrag();
        call();
        m_steps.NoteNode(m_node);
    }

    ProjectSteps& m_steps;
    const NLEComPtr<INLETimeline> m_node;
    Call m_redo;
    const Call m_undo;
    const int m_merge;
    bool m_isDone = true; ///< before it came into the stack
};

} // namespace

ProjectSteps::ProjectSteps(NLEComPtr<INLEFactory> factory, QObject* parent)
    : QObject(parent), m_factory(std::move(factory))
{
    m_stack.setUndoLimit(kMostSteps);
    // The one that comes after whatever moved the stack; slots find it at rest.
    connect(&m_stack, &QUndoStack::indexChanged, this, &ProjectSteps::Tell);
}

void ProjectSteps::Begin(NLEComPtr<INLEEditing> editing)
{
    m_drag.reset();
    m_editing = nullptr;
    m_clips.reset();
    m_nodes.clear();
    m_stack.clear();
    m_editing = std::move(editing);
    m_editing->SetMostSteps(kMostSteps);
}

bool ProjectSteps::Try(const EditCall& edit)
{
    if (SUCCEEDED(edit(*m_editing)))
        return true;
    m_editing->RewindStep(); // what it had done before it was refused
    return false;
}

bool ProjectSteps::Edit(const QString& text, const EditCall& edit)
{
    EndDrag();
    const Reasons reasons(m_factory);
    if (FAILED(m_editing->BeginStep()))
        return false;
    const bool isDone = Try(edit);
    const QString refusal = isDone ? QString() : reasons.Of(text);
    CloseStep(text);
    if (!isDone)
        Q_EMIT Refused(refusal);
    return isDone;
}

void ProjectSteps::CloseStep(const QString& text)
{
    if (m_editing->EndStep() != S_OK)
        return;
    NoteClips();
    m_stack.push(new EditStep(text, *this));
}

void ProjectSteps::BeginDrag(const QString& text)
{
    EndDrag();
    if (SUCCEEDED(m_editing->BeginStep()))
        m_drag = OpenDrag{text, {}};
}

bool ProjectSteps::Drag(const EditCall& edit, const EditCall& otherwise)
{
    if (!m_drag)
        return false;
    m_editing->RewindStep();
    NoteClips();
    const Reasons reasons(m_factory);
    const bool isDone = Try(edit);
    const QString refusal = isDone ? QString() : reasons.Of(m_drag->text);
    const bool isNews = std::exchange(m_drag->refusal, refusal) != refusal;
    if (isDone || (otherwise && Try(otherwise)))
        NoteClips();
    Tell();
    if (isNews)
        Q_EMIT DragRefused(refusal);
    return isDone;
}

void ProjectSteps::EndDrag()
{
    if (!m_drag)
        return;
    const OpenDrag drag = *std::exchange(m_drag, std::nullopt);
    CloseStep(drag.text);
    if (!drag.refusal.isEmpty())
        Q_EMIT Refused(drag.refusal);
}

void ProjectSteps::DropDrag()
{
    if (!m_drag)
        return;
    const bool wasRefused = !m_drag->refusal.isEmpty();
    m_drag.reset();
    m_editing->RewindStep();
    NoteClips();
    m_editing->EndStep();
    if (wasRefused)
        Q_EMIT DragRefused({});
}

void ProjectSteps::CancelDrag()
{
    DropDrag();
    Tell();
}

bool ProjectSteps::Change(const QString& text, const NLEComPtr<INLETimeline>& node, ChangeCall redo,
                          ChangeCall undo, int merge)
{
    EndDrag();
    const Reasons reasons(m_factory);
    if (!redo()) {
        Q_EMIT Refused(reasons.Of(text));
        return false;
    }
    ForgetLost();
    m_stack.push(new ChangeStep(text, *this, node, std::move(redo), std::move(undo), merge));
    return true;
}

void ProjectSteps::Move(HRESULT (INLEEditing::*move)())
{
    DropDrag();
    if ((m_editing.get()->*move)() == S_OK)
        NoteClips();
}

void ProjectSteps::NoteNode(const NLEComPtr<INLETimeline>& node)
{
    if (!m_nodes.contains(node))
        m_nodes << node;
}

void ProjectSteps::NoteClips()
{
    if (!m_clips)
        m_clips.emplace();
    NLEComPtr<INLETimelineEnumerator> changed;
    if (FAILED(m_editing->GetChanged(changed.put())))
        return;
    for (const NLEComPtr<INLETimeline>& clip : NodesOf(*changed)) {
        if (!m_clips->contains(clip))
            *m_clips << clip;
    }
}

void ProjectSteps::Tell()
{
    if (m_isForgetting || !m_editing)
        return;
    ForgetLost();
    const std::optional<Clips> clips = std::exchange(m_clips, std::nullopt);
    const Clips nodes = std::exchange(m_nodes, {});
    if (clips)
        Q_EMIT ClipsChanged(*clips);
    for (const NLEComPtr<INLETimeline>& node : nodes)
        Q_EMIT NodeChanged(node);
}

int ProjectSteps::CountEdits(int first, int last) const
{
    int count = 0;
    for (int index = first; index < last; ++index)
        count += dynamic_cast<const EditStep*>(m_stack.command(index)) ? 1 : 0;
    return count;
}

/// A change of speed or rate empties the engine's history; edits that it knew cannot be undone or
/// redone any more, and what lies between them neither.
void ProjectSteps::ForgetLost()
{
    int undo = 0;
    int redo = 0;
    m_editing->GetStepCounts(&undo, &redo);
    const int here = m_stack.index();
    if (CountEdits(0, here) <= undo && CountEdits(here, m_stack.count()) <= redo)
        return;
    const bool isClean = m_stack.isClean();
    m_isForgetting = true;
    m_stack.clear(); // says that all is as it was saved
    if (!isClean)
        m_stack.resetClean();
    m_isForgetting = false;
}
