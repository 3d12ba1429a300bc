// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Model/Project.h"

#include "CommonLib/NLEWraper/NLETimeline.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "Host/Editor/Model/Engine.h"
#include "Host/Editor/Model/Reasons.h"
#include "Host/EngineText.h"

#include <QFileInfo>

#include <utility>

namespace {

/// Remarks that \a serializer made on what it has loaded; engines may make none.
QStringList RemarksOf(const NLEComPtr<INLEDocumentSerialize>& serializer)
{
    QStringList remarks;
    const NLEComPtr<INLEDocumentReport> report = serializer.query<INLEDocumentReport>();
    int count = 0;
    if (!report || FAILED(report->GetRemarkCount(&count)))
        return remarks;
    for (int index = 0; index < count; ++index) {
        int code = 0;
        const QString text = EngineText([&](wchar_t* buffer, int capacity) {
            return report->GetRemark(index, &code, buffer, capacity);
        });
        const QString title = EngineText([&](wchar_t* buffer, int capacity) {
            return report->GetRemarkTitle(code, buffer, capacity);
        });
        remarks << QStringLiteral("%1: %2").arg(title, text);
    }
    return remarks;
}

} // namespace

Project::Project(QObject* parent)
    : QObject(parent), m_factory(EngineFactory()), m_steps(m_factory, nullptr)
{
    connect(&m_steps, &ProjectSteps::ClipsChanged, this, &Project::ClipsChanged);
    connect(&m_steps, &ProjectSteps::NodeChanged, this, &Project::NodeChanged);
    connect(&m_steps, &ProjectSteps::Refused, this, &Project::Refused);
    connect(&m_steps, &ProjectSteps::DragRefused, this, &Project::DragRefused);
    connect(&Steps(), &QUndoStack::indexChanged, this, &Project::TellModified);
    connect(&Steps(), &QUndoStack::cleanChanged, this, &Project::TellModified);
    Adopt(EngineProvider().CreateProjectTimeline(), {}, {});
}

Project::~Project()
{
    Steps().disconnect(this);
}

bool Project::IsUsable() const
{
    return m_steps.Editing() != nullptr;
}

NLEComPtr<INLELevels> Project::Levels() const
{
    return NLEComPtr<INLEEditing>(&Editing()).query<INLELevels>();
}

double Project::FrameRate() const
{
    NLERational rate = {0, 1};
    const bool isKnown = m_node->GetRenderFrameRate(&rate) == S_OK && rate.num > 0 && rate.den > 0;
    return isKnown ? double(rate.num) / double(rate.den) : 25;
}

int Project::Length() const
{
    return m_timeline->GetPlayLen();
}

// ---- Steps

bool Project::Edit(const QString& text, const EditCall& edit)
{
    return m_steps.Edit(text, edit);
}

void Project::BeginDrag(const QString& text)
{
    m_steps.BeginDrag(text);
}

bool Project::Drag(const EditCall& edit, const EditCall& otherwise)
{
    return m_steps.Drag(edit, otherwise);
}

void Project::EndDrag()
{
    m_steps.EndDrag();
}

void Project::CancelDrag()
{
    m_steps.CancelDrag();
}

bool Project::Change(const QString& text, const NLEComPtr<INLETimeline>& node, ChangeCall redo,
                     ChangeCall undo, int merge)
{
    return m_steps.Change(text, node, std::move(redo), std::move(undo), merge);
}

// ---- File

bool Project::New(const tagNLEProjectProfile& profile)
{
    const Reasons reasons(m_factory);
    const QString action = tr("The project cannot be made");
    const NLEComPtr<INLETimeline> node = EngineProvider().CreateProjectTimeline(profile);
    if (!node)
        return Refuse(reasons.Of(action));
    m_remarks.clear();
    return Adopt(node, action, {});
}

bool Project::Open(const QString& path)
{
    const NLEComPtr<INLETimeline> node = Load(path);
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return node && Adopt(node, tr("%1 cannot be opened").arg(path), absolute);
}

bool Project::Recover(const QString& document, const QString& path)
{
    const NLEComPtr<INLETimeline> node = Load(document);
    if (!node || !Adopt(node, tr("%1 cannot be opened").arg(document), path))
        return false;
    Steps().resetClean();
    return true;
}

NLEComPtr<INLETimeline> Project::Load(const QString& path)
{
    const Reasons reasons(m_factory);
    const NLEComPtr<INLEDocumentSerialize> serializer = EngineProvider().CreateDocumentSerialize();
    NLEComPtr<INLETimeline> node;
    const std::wstring file = path.toStdWString();
    if (!serializer || FAILED(serializer->Load(file.c_str(), node.put()))) {
        node.forget();
        Refuse(reasons.Of(tr("%1 cannot be opened").arg(QFileInfo(path).fileName())));
        return nullptr;
    }
    m_remarks = RemarksOf(serializer);
    return node;
}

/// \a action is what to say when the node cannot be a project.
bool Project::Adopt(const NLEComPtr<INLETimeline>& node, const QString& action, const QString& path)
{
    const Reasons reasons(m_factory);
    NLEComPtr<INLEEditing> editing;
    if (!m_factory || !node || FAILED(m_factory->CreateEditing(node.get(), editing.put()))) {
        editing.forget();
        return Refuse(reasons.Of(action));
    }
    // What still shows the former one lets go of it in the signal.
    const NLEComPtr<INLETimeline> former = std::exchange(m_node, node);
    const std::unique_ptr<NLETimeline> formerTimeline =
        std::exchange(m_timeline, std::make_unique<NLETimeline>(node, ExactType_Project, nullptr));
    m_steps.Begin(std::move(editing));
    const bool isElsewhere = std::exchange(m_path, path) != path;
    Q_EMIT Replaced();
    if (isElsewhere)
        Q_EMIT PathChanged();
    TellModified();
    return true;
}

bool Project::Save()
{
    return !m_path.isEmpty() && SaveAs(m_path);
}

bool Project::SaveAs(const QString& path)
{
    Q_EMIT Saving(QFileInfo(path).absoluteFilePath());
    if (!Write(path))
        return false;
    Steps().setClean();
    SetPath(QFileInfo(path).absoluteFilePath());
    return true;
}

bool Project::SaveCopy(const QString& path)
{
    return Write(path);
}

bool Project::Write(const QString& path)
{
    EndDrag();
    const Reasons reasons(m_factory);
    const NLEComPtr<INLEDocumentSerialize> serializer = EngineProvider().CreateDocumentSerialize();
    if (serializer && SUCCEEDED(serializer->Save(m_node.get(), path.toStdWString().c_str())))
        return true;
    return Refuse(reasons.Of(tr("%1 cannot be saved").arg(QFileInfo(path).fileName())));
}

bool Project::Refuse(const QString& reason)
{
    Q_EMIT Refused(reason);
    return false;
}

void Project::SetPath(const QString& path)
{
    if (m_path == path)
        return;
    m_path = path;
    Q_EMIT PathChanged();
}

void Project::TellModified()
{
    if (m_steps.IsForgetting() || IsModified() == m_toldModified)
        return;
    m_toldModified = IsModified();
    Q_EMIT ModifiedChanged(m_toldModified);
}
