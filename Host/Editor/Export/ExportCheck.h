// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Export/ExportOrder.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

/// Tells beforehand whether a film can be written as it is ordered: the engine writes a short one
/// in the background.
class ExportCheck : public QObject
{
    Q_OBJECT

public:
    explicit ExportCheck(QObject* parent = nullptr);
    /// Waits for the check that is running.
    ~ExportCheck() override;

    /// Checks \a order, in a moment, in place of what was asked before. Size, rates and channels
    /// have to be there.
    void Ask(const ExportOrder& order);

Q_SIGNALS:
    /// Of the order that was asked for last: an empty text, or why it cannot be, for people.
    void Told(const QString& complaint);

private:
    void Begin();

    ExportOrder m_order;
    int m_number = 0; ///< of the order, so that answers of former ones are left out
    QTimer m_pause;
    QThreadPool m_thread;
};
