// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Editor/Properties/KeyFrames.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QToolButton;

/// Key frames of one number or more: goes to the one before and behind the play head, and says how
/// the value goes on from there. It shows as long as there are some. A button beside it sets and
/// removes the one under the play head.
class KeyFrameBar : public QWidget
{
    Q_OBJECT

public:
    KeyFrameBar(std::shared_ptr<KeyFrames> keys, const QString& title, QWidget* parent);

    /// The button, for the layout of the parent; it is a child of that.
    QWidget* Diamond() const;
    /// Shows the key frames around \a playHead, a frame of the project.
    void Show(int playHead);

Q_SIGNALS:
    void SeekWanted(int frame);
    void ChangeWanted(const PropertyChange& change);

private:
    void AddInterpolations();
    void Toggle();

    const std::shared_ptr<KeyFrames> m_keys;
    const QString m_title;
    QToolButton* m_previous;
    QToolButton* m_diamond;
    QToolButton* m_next;
    QComboBox* m_interpolation;
    int m_playHead = 0;
};
