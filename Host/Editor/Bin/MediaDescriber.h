// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "Com/NLEComPtr.h"
#include "EngineApi/INLEMedia.h"
#include "EngineApi/INLEProxies.h"
#include "Host/MediaReport.h"

#include <QObject>
#include <QSet>
#include <QThreadPool>

#include <memory>

/// What a file of media is.
struct MediaDescription
{
    enum class State
    {
        Unknown, ///< it is not read yet
        Ready,
        Offline,   ///< the file is not there
        Unreadable ///< the engine knows nothing of it
    };

    QString path;
    State state = State::Unknown;
    NLEComPtr<INLEMediaInfo> info;             ///< null unless it is ready
    std::shared_ptr<const MediaReport> report; ///< null with it
    QString reason;                            ///< why it is unreadable, in short; may be empty
    QString proxy; ///< a film that could stand for it; empty when none was made
};

/// Describes files in background threads.
class MediaDescriber : public QObject
{
    Q_OBJECT

public:
    explicit MediaDescriber(QObject* parent = nullptr);
    /// Waits for the files that are being read.
    ~MediaDescriber() override;

    /// Reads \a path; Described() tells what it is, once for several calls in the meantime.
    void Describe(const QString& path);
    bool IsBusy() const { return !m_asked.isEmpty(); }

Q_SIGNALS:
    void Described(const MediaDescription& description);

private:
    MediaDescription Read(const QString& path) const;

    NLEComPtr<INLEProxyMaker> m_proxies; ///< null without an engine
    QSet<QString> m_asked;
    QThreadPool m_threads;
};
