// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Host/Editor/Timeline/AccessibleTimeline.h"

#include "Host/Editor/Model/Selection.h"
#include "Host/Editor/Timeline/TimelineGeometry.h"
#include "Host/Editor/Timeline/TimelineModel.h"
#include "Host/Editor/Timeline/TimelinePanel.h"
#include "Host/Editor/Timeline/TimelineView.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <algorithm>
#include <unordered_map>
#include <vector>

namespace {

/// A clip or a transition. Invalid when that, or the view, has gone.
class AccessibleClip : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    AccessibleClip(TimelineView* view, NLEComPtr<INLETimeline> node)
        : m_view(view), m_node(std::move(node))
    {
    }

    bool isValid() const override { return Row() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_view ? m_view->window()->windowHandle() : nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_view);
    }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

    QString text(QAccessible::Text kind) const override
    {
        const ClipRow* row = Row();
        if (!row || (kind != QAccessible::Name && kind != QAccessible::Description))
            return {};
        return kind == QAccessible::Name ? row->name : TimelinePanel::Described(*row);
    }
    QRect rect() const override
    {
        const ClipRow* row = Row();
        if (!row)
            return {};
        const QRect box = m_view->Geometry().Box(*row).intersected(m_view->rect());
        return {m_view->mapToGlobal(box.topLeft()), box.size()};
    }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.invalid = !isValid();
        state.selectable = true;
        state.multiSelectable = true;
        state.selected = m_view && m_view->Selected().Contains(m_node.get());
        state.offscreen = rect().isEmpty();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), toggleAction()}; }
    void doAction(const QString& name) override
    {
        if (!isValid())
            return;
        if (name == pressAction())
            m_view->Selected().Set({m_node});
        else if (name == toggleAction())
            m_view->Selected().Toggle(m_node);
    }
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

private:
    const ClipRow* Row() const { return m_view ? m_view->Model().Find(m_node.get()) : nullptr; }

    const QPointer<TimelineView> m_view;
    const NLEComPtr<INLETimeline> m_node;
};

/// The view, whose children are its clips: the lowest level first, each in the order of time.
class AccessibleView : public QAccessibleWidget
{
public:
    explicit AccessibleView(TimelineView* view) : QAccessibleWidget(view, QAccessible::List)
    {
        QObject::connect(&view->Model(), &TimelineModel::Changed, &m_context,
                         [this] { m_isRead = false; });
    }
    ~AccessibleView() override
    {
        for (const auto& [node, id] : m_ids)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return int(Nodes().size()); }
    QAccessibleInterface* child(int index) const override
    {
        const auto& nodes = Nodes();
        return index >= 0 && index < int(nodes.size()) ? Of(nodes[std::size_t(index)]) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const auto& nodes = Nodes();
        // It was asked for before, as none is made else.
        const auto found = std::find_if(nodes.begin(), nodes.end(), [&](const Node& node) {
            const auto known = m_ids.find(node.get());
            return known != m_ids.end() && QAccessible::accessibleInterface(known->second) == child;
        });
        return found == nodes.end() ? -1 : int(found - nodes.begin());
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const QPoint at = View().mapFromGlobal(QPoint(x, y));
        const ClipRow* row = ClipHit::Find(View().Model(), View().Geometry(), at).row;
        return row ? Of(row->node) : nullptr;
    }

private:
    using Node = NLEComPtr<INLETimeline>;

    TimelineView& View() const { return *static_cast<TimelineView*>(widget()); }
    const std::vector<Node>& Nodes() const
    {
        if (!m_isRead)
            Read();
        return m_nodes;
    }
    void Read() const
    {
        const TimelineModel& model = View().Model();
        m_isRead = true;
        m_nodes.clear();
        for (int level = 0; level < model.LevelCount(); ++level) {
            for (const LevelIndex* index : {&model.Clips(level), &model.Transitions(level)}) {
                for (const LevelIndex::Entry& entry : index->All())
                    m_nodes.push_back(entry.row->node);
            }
        }
        // Objects of clips that have gone.
        for (auto it = m_ids.begin(); it != m_ids.end();) {
            const bool isThere = model.Find(it->first);
            if (!isThere)
                QAccessible::deleteAccessibleInterface(it->second);
            it = isThere ? std::next(it) : m_ids.erase(it);
        }
    }
    QAccessibleInterface* Of(const Node& node) const
    {
        const auto known = m_ids.find(node.get());
        if (known != m_ids.end())
            return QAccessible::accessibleInterface(known->second);
        auto* clip = new AccessibleClip(&View(), node);
        m_ids[node.get()] = QAccessible::registerAccessibleInterface(clip);
        return clip;
    }

    QObject m_context;
    mutable bool m_isRead = false;
    mutable std::vector<Node> m_nodes;
    mutable std::unordered_map<INLETimeline*, QAccessible::Id> m_ids; ///< of those asked for
};

QAccessibleInterface* Make(const QString& /*className*/, QObject* object)
{
    auto* view = qobject_cast<TimelineView*>(object);
    return view ? new AccessibleView(view) : nullptr;
}

} // namespace

void AccessibleTimeline::Install()
{
    // Which takes each function once.
    QAccessible::installFactory(&Make);
}
