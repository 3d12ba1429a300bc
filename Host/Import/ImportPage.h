// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Host/Import/ImportSession.h"

#include <QTimer>
#include <QWidget>

#include <functional>

class ImportTree;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;

/// Imports media from cameras, phones and cards: the devices, the content of one, and the files of
/// it that are to be copied into a folder.
class ImportPage : public QWidget
{
    Q_OBJECT

public:
    explicit ImportPage(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Files have come, of an import that was stopped too; their \a paths.
    void Imported(const QStringList& paths);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    enum class State
    {
        NoDevice,
        Opening,
        Reading,
        Ready,
        Importing,
        Refused, ///< a device that could not be opened
        InUse,   ///< another page has a device open
        Removed
    };

    using Text = std::function<QString()>; ///< in the language of the moment it is asked

    void BuildLayout();
    void Connect();
    void SetState(State state);
    /// Whether the chosen device is there and not open.
    bool IsRefused() const { return m_state == State::Refused || m_state == State::InUse; }
    void SetTexts();
    static QString ShownName(const QString& deviceName);
    void ShowNotice();
    void Say(Text status);
    void ShowStatus();
    /// \a text behind what came of the last import, if there was one.
    QString AfterResult(const QString& text) const;
    void UpdateButtons();

    void TakeDevices(const QVector<ImportDevice>& devices);
    void ShowDevices(const QVector<ImportDevice>& devices);
    void Choose(int index);
    void TakeContentEnd(bool isWhole);
    void StartImport();
    void TakeProgress(quint64 bytes);
    void TakeResult(const ImportResult& result);
    /// The marked files that \a result does not report as imported.
    QVector<std::wstring> NotImported(const ImportResult& result) const;
    void TakeRemoval();
    void OpenChosen(const QVector<std::wstring>& toDelete = {});
    bool CanImportInto(const QString& folder);
    void ChooseFolder();

    ImportSession m_session;
    QTimer m_listTimer;       ///< looks for devices, except during an import
    bool m_isListing = false; ///< the list that it asked for has not come yet
    State m_state = State::NoDevice;
    QVector<ImportDevice> m_devices;
    std::wstring m_chosen; ///< identifier of the device that is shown
    QString m_chosenName;  ///< its own, which may be empty
    quint64 m_bytesToImport = 0;
    QVector<std::wstring> m_leftToImport; ///< to be marked once the content has been read again
    Text m_statusText;                    ///< what the page says now; null for nothing
    Text m_lastResult; ///< what came of the last import from the device that is shown
    Text m_idleText;   ///< said of the content while no file is chosen

    // Children of the page.
    QComboBox* m_deviceBox;
    QPushButton* m_refreshButton;
    QStackedWidget* m_stack;
    QLabel* m_notice;
    ImportTree* m_tree;
    QLabel* m_folderLabel;
    QLineEdit* m_folder;
    QPushButton* m_folderButton;
    QCheckBox* m_deleteBox;
    QLabel* m_status;
    QProgressBar* m_progress;
    QPushButton* m_cancelButton;
    QPushButton* m_importButton;
};
