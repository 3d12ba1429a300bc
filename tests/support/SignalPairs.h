// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QMetaMethod>
#include <QSet>
#include <QStringList>
#include <QtWidgets>

/// Watches all widgets and what belongs to them: each signal that tells of a start must be followed
/// by its end, before the next start.
class SignalPairs
{
public:
    /// Watches what has come since the last call.
    void Follow()
    {
        for (QWidget* widget : QApplication::allWidgets()) {
            Follow(widget);
            for (QObject* child : widget->children()) {
                if (!child->isWidgetType())
                    Follow(child);
            }
        }
    }
    /// What was wrong so far.
    QStringList Faults() const { return m_faults; }
    /// Starts that wait for their end.
    QStringList Open() const
    {
        QStringList open;
        for (const Watch* watch : m_watches)
            open << watch->open;
        return open;
    }

private:
    struct Pair
    {
        const char* start;
        const char* end;
    };
    static constexpr Pair kPairs[] = {
        {"startValueChanged", "endValueChanged"},
        {"startDrag", "endDrag"},
        {"sigStartValueChanged", "sigEndValueChanged"},
        {"StartFramesChanged", "EndFramesChanged"},
        {"StartZoomChanged", "EndZoomChanged"},
        {"sigSingleClickStartFramesChanged", "sigSingleClickEndFrameChanged"},
        {"Began", "Ended"},
    };

    /// Of one object; goes with it.
    struct Watch : QObject
    {
        Watch(QObject* sender, SignalPairs& pairs) : QObject(sender), m_pairs(pairs)
        {
            for (const Pair& pair : kPairs) {
                if (Connect(sender, pair.start))
                    Connect(sender, pair.end);
            }
        }
        ~Watch() override { m_pairs.m_watches.remove(this); }
        int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
        {
            id = QObject::qt_metacall(call, id, arguments);
            if (id >= 0)
                Note(m_signals[id], id % 2 == 0);
            return -1;
        }

        QStringList open; ///< the starts

    private:
        bool Connect(QObject* sender, const char* name)
        {
            const QMetaObject* meta = sender->metaObject();
            for (int i = 0; i < meta->methodCount(); ++i) {
                if (meta->method(i).methodType() != QMetaMethod::Signal ||
                    meta->method(i).name() != name)
                    continue;
                const int id = QObject::staticMetaObject.methodCount() + m_signals.size();
                QMetaObject::connect(sender, i, this, id, Qt::DirectConnection);
                m_signals << QString("%1::%2").arg(meta->className(), name);
                return true;
            }
            return false;
        }
        void Note(const QString& signal, bool isStart)
        {
            const QString start = isStart ? signal : m_signals[m_signals.indexOf(signal) - 1];
            if (open.contains(start) == isStart)
                m_pairs.m_faults << signal + (isStart ? " twice" : " without a start");
            isStart ? void(open << start) : void(open.removeOne(start));
        }

        SignalPairs& m_pairs;
        QStringList m_signals; ///< by id; starts are even
    };

    void Follow(QObject* object)
    {
        const QMetaObject* meta = object->metaObject();
        if (!m_hasPairs.contains(meta))
            m_hasPairs[meta] =
                std::any_of(std::begin(kPairs), std::end(kPairs), [meta](const Pair& pair) {
                    for (int i = 0; i < meta->methodCount(); ++i) {
                        if (meta->method(i).name() == pair.start)
                            return true;
                    }
                    return false;
                });
        if (!m_hasPairs[meta] || m_known.contains(object))
            return;
        m_known << object;
        QObject::connect(object, &QObject::destroyed, [this, object] { m_known.remove(object); });
        m_watches << new Watch(object, *this);
    }

    QHash<const QMetaObject*, bool> m_hasPairs;
    QSet<QObject*> m_known;
    QSet<Watch*> m_watches;
    QStringList m_faults;
};
