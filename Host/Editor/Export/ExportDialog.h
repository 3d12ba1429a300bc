// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEFrames.h"
#include "Host/Editor/Export/ExportOrder.h"

#include <QDialog>

class ExportCheck;
class ExportQueue;
class MediaPlayer;
class Project;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class TimecodeEdit;

/// Asks how the project is to be written and puts it into a queue, whose films it shows below. The
/// project may be edited meanwhile.
///
/// Project, player and queue must outlive it.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    ExportDialog(Project& project, MediaPlayer& player, ExportQueue& queue,
                 QWidget* parent = nullptr);

    /// Frames of the project from the first to the last one, as in and out point are; without a
    /// call all of it.
    void SetRange(int first, int last);
    void SetPath(const QString& path);
    /// What is chosen now.
    ExportOrder Order() const;
    /// Shows what \a other shows, which may be in another language.
    void TakeChoices(const ExportDialog& other);

public Q_SLOTS:
    /// Asks for a file and writes the frame under the play head to it.
    void AskForStill();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void AddPresets(QFormLayout& form);
    void AddFile(QFormLayout& form);
    void AddFormat(QFormLayout& form);
    void AddRange(QFormLayout& form);
    void AddNotes(QFormLayout& form);
    QWidget* MakeButtons();
    QSpinBox* MakeSide(const QString& name);
    TimecodeEdit* MakePoint(const QString& name);
    void TakeSize();
    void TakeLength();
    void TakePreset();
    void PickFile();
    bool MayWrite(const QString& path);
    void Check();
    void ShowComplaint(const QString& complaint);
    void AddToQueue();

    Project& m_project;
    MediaPlayer& m_player;
    ExportQueue& m_queue;
    NLEComPtr<INLEMediaEncoder> m_encoder; ///< for its catalogue
    ExportCheck* m_check;
    QComboBox* m_preset;
    QLineEdit* m_path;
    QString m_mayReplace; ///< chosen in a dialog that has asked; empty for none
    QSize m_projectSize;  ///< that was taken
    QSpinBox* m_width = nullptr;
    QSpinBox* m_height = nullptr;
    QComboBox* m_rate = nullptr;
    QComboBox* m_sampleRate = nullptr;
    QRadioButton* m_all = nullptr;
    QRadioButton* m_part = nullptr;
    TimecodeEdit* m_first = nullptr;
    TimecodeEdit* m_last = nullptr;
    QLabel* m_complaint;
    QPushButton* m_add;
};
