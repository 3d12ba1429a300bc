// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class QComboBox;
class QFormLayout;
class QLabel;
class QSpinBox;

/// Chooses the language of the interface, and shows what the choice changes.
class LanguagePage : public QWidget
{
    Q_OBJECT

public:
    explicit LanguagePage(QWidget* parent = nullptr);

protected:
    /// The reading direction follows the language.
    void changeEvent(QEvent* event) override;

private:
    void ListLanguages();
    void AddLabeled(QFormLayout* form, const char* label, QWidget* field);
    QWidget* MakeSample();
    void ShowFacts();

    QComboBox* m_languages;
    QLabel* m_font;
    QLabel* m_drawnIn;
    QLabel* m_direction;
    QSpinBox* m_count;
    QLabel* m_counted;
};
