// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "NLECore/media/MediaInfo.h"
#include "tests/support/Files.h"
#include "tests/support/TestMedia.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// Files of media in a folder that goes.
class MediaFixture
{
public:
    using Info = std::shared_ptr<const nle::MediaInfo>;
    inline static const QSize kThumbnail{160, 90};

    static TestClip SmallClip(int frames)
    {
        TestClip clip;
        clip.size = kThumbnail;
        clip.frames = frames;
        return clip;
    }

    QString Path(const QString& name) const { return folder.filePath(name); }
    /// What is in the file; without an object, and with a warning, when that fails.
    Info Probe(const QString& name, QString error = {}) const
    {
        auto info = error.isEmpty() ? nle::ProbeMedia(Path(name), &error) : nullptr;
        if (!info)
            qWarning("%s", qPrintable(error));
        return info;
    }
    /// What is in the file of that name, which is made when there is none.
    Info Make(const QString& name, const TestClip& clip) const
    {
        return Probe(name, QFile::exists(Path(name)) ? QString() : MakeTestClip(Path(name), clip));
    }

    QTemporaryDir folder;
};
