// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "TestMedia.h"

#include <QList>

#include <cmath>

/// A film of generated pictures whose scenes are known.
struct SceneFilm
{
    struct Shot
    {
        /// Sources and filters of libavfilter without size and rate; "@" stands for these.
        QString source;
        double seconds;
        /// How long the shot before it dissolves into it, part of its seconds; 0 is a cut.
        double dissolve = 0;
    };
    /// Where a scene begins: of a dissolve the frame half way, give or take its length.
    struct Scene
    {
        int frame;
        int tolerance;
    };

    QSize size{320, 180};
    int rate = 25;
    QList<Shot> shots;
    /// Put behind it all, for flashes and the like; may be empty.
    QString filter;

    QList<Scene> Scenes() const
    {
        QList<Scene> scenes;
        double end = 0;
        for (const Shot& shot : shots) {
            const double middle = end - shot.dissolve / 2;
            if (end > 0)
                scenes.append({int(std::lround(middle * rate)),
                               shot.dissolve > 0 ? int(std::lround(shot.dissolve * rate / 2)) : 1});
            end += shot.seconds - shot.dissolve;
        }
        return scenes;
    }

    /// Empty on success, else what went wrong.
    QString Make(const QString& path) const
    {
        const QString format =
            QString("size=%1x%2:rate=%3").arg(size.width()).arg(size.height()).arg(rate);
        const QString even = QString("fps=%1,format=yuv420p,settb=AVTB").arg(rate);
        QStringList arguments;
        QStringList graph;
        double end = 0;
        for (int i = 0; i < shots.size(); ++i) {
            const Shot& shot = shots[i];
            arguments << "-f"
                      << "lavfi"
                      << "-t" << QString::number(shot.seconds) << "-i"
                      << QString(shot.source).replace("@", format);
            graph << QString("[%1:v]%2,setpts=PTS-STARTPTS[in%1]").arg(i).arg(even);
            const QString join = i == 0 ? QString("[in0]null")
                                 : shot.dissolve > 0
                                     ? QString("[out%1][in%2]xfade=duration=%3:offset=%4")
                                           .arg(i - 1)
                                           .arg(i)
                                           .arg(shot.dissolve)
                                           .arg(end - shot.dissolve)
                                     : QString("[out%1][in%2]concat").arg(i - 1).arg(i);
            graph << join + QString(",%1[out%2]").arg(even).arg(i);
            end += shot.seconds - shot.dissolve;
        }
        graph << QString("[out%1]%2[out]")
                     .arg(shots.size() - 1)
                     .arg(filter.isEmpty() ? "null" : filter);
        arguments << "-filter_complex" << graph.join(';') << "-map"
                  << "[out]"
                  << "-c:v"
                  << "libx264"
                  << "-preset"
                  << "veryfast" << path;
        return RunFfmpeg(arguments);
    }
};
