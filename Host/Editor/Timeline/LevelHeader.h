// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QVector>
#include <QWidget>

class LevelButton;
class QBoxLayout;
class QLineEdit;
struct LevelState;

/// The head of a level beside its clips: its name, which can be edited, what is set for it, and a
/// lower edge that can be dragged. Ctrl with the arrow keys moves the edge too.
class LevelHeader : public QWidget
{
    Q_OBJECT

public:
    explicit LevelHeader(int level, QWidget* parent = nullptr);

    void SetState(const LevelState& state);

Q_SIGNALS:
    void NameAsked(const QString& name);
    /// One of NLELevelFlags.
    void FlagAsked(int flag, bool on);
    void LockAsked(bool locked);
    void HeightAsked(int pixels);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// A button, and the flag that it sets.
    struct Switch
    {
        LevelButton* button;
        int flag;
        const char* title;
    };

    void SetTexts();
    void ShowName(const QString& name);
    void AskName();
    bool IsAtEdge(int y) const;

    const int m_level;
    QString m_given; ///< the name that the project has
    QBoxLayout* m_layout = nullptr;
    QLineEdit* m_name;
    QVector<Switch> m_switches;
    LevelButton* m_lock = nullptr;
    int m_heldBelow =
        -1; ///< pixels from the pointer to the lower edge in a drag; -1: there is none
};
