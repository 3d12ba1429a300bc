// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/DocumentSerialize.h"

#include "Com/ComGuard.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/model/DocumentReader.h"
#include "NLECore/model/DocumentWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace nle {

namespace {

HRESULT Report(const QString& path, const QString& reason)
{
    qCWarning(lcEngine, "%s: %s", qUtf8Printable(path), qUtf8Printable(reason));
    return E_FAIL;
}

} // namespace

HRESULT DocumentSerialize::Save(INLETimeline* timeline, const wchar_t* path)
{
    return ComGuard([&] {
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node || !path)
            return E_INVALIDARG;
        const QString name = QString::fromWCharArray(path);
        QSaveFile file(name);
        if (!file.open(QIODevice::WriteOnly))
            return Report(name, file.errorString());
        QString text;
        DocumentWriter(text, QFileInfo(name).absoluteDir()).Write(*node);
        file.write(text.toUtf8());
        return file.commit() ? S_OK : Report(name, file.errorString());
    });
}

HRESULT DocumentSerialize::Load(const wchar_t* path, INLETimeline** timeline)
{
    return ComGuard([&] {
        if (!path || !timeline)
            return E_POINTER;
        *timeline = nullptr;
        const QString name = QString::fromWCharArray(path);
        QFile file(name);
        if (!QFileInfo(name).isFile())
            return Report(name, QStringLiteral("no such file"));
        if (!file.open(QIODevice::ReadOnly))
            return Report(name, file.errorString());
        DocumentReader reader(file.readAll(), QFileInfo(name).absoluteDir());
        NLEComPtr<TimelineNode> node = reader.Read();
        if (!node)
            return Report(name, reader.Error());
        *timeline = node.detach();
        return S_OK;
    });
}

} // namespace nle
