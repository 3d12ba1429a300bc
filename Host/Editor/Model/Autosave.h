// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>

class Project;

/// Keeps a copy of what is not saved yet, so that a crash costs at most kInterval of work.
///
/// Each run of the program has a folder of its own below the given one, with a lock that tells
/// whether it still runs. The folder goes at the regular end; one that is left without its run
/// tells of a crash.
class Autosave : public QObject
{
    Q_OBJECT

public:
    static constexpr int kInterval = 5000; ///< milliseconds

    /// What a run that crashed has left. Locked against other runs while it lives.
    struct Leftover
    {
        QString folder;
        QString document;
        QString path; ///< of the project that it is of; empty for one that was never saved
        QDateTime when;
        std::shared_ptr<QLockFile> lock;
    };

    Autosave(Project& project, const QString& folder, QObject* parent = nullptr);
    /// The regular end: nothing is left.
    ~Autosave() override;

    QVector<Leftover> Leftovers() const;
    /// Opens what is left in place of what is open, and has it as a copy of this run's.
    bool Recover(const Leftover& leftover);
    static void Discard(const Leftover& leftover);

private:
    void Note();
    void Write();
    QString Document() const;

    Project& m_project;
    const QString m_folder; ///< of all runs
    const QString m_own;
    std::unique_ptr<QLockFile> m_lock;
    QTimer m_timer;
};
