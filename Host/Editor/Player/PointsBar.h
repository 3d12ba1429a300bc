// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QVector>
#include <QWidget>

/// Shows above a seek bar where the range between in and out point and the markers are.
class PointsBar : public QWidget
{
    Q_OBJECT

public:
    explicit PointsBar(QWidget* parent = nullptr);

    /// What plays, in frames.
    void SetLength(int frames);
    /// First and last frame of the range; an \a out before \a in is none.
    void SetRange(int in, int out);
    void SetMarkers(const QVector<int>& frames);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double At(int frame) const;

    int m_length = 0;
    int m_in = 0;
    int m_out = -1;
    QVector<int> m_markers;
};
