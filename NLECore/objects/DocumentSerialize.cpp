// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/DocumentSerialize.h"

#include "Com/ComGuard.h"
#include "Com/WideText.h"
#include "NLECore/media/EngineLog.h"
#include "NLECore/media/Reasons.h"
#include "NLECore/media/WholeFile.h"
#include "NLECore/model/DocumentText.h"
#include "NLECore/model/MltReader.h"
#include "NLECore/model/MltWriter.h"
#include "NLECore/model/OtioReader.h"
#include "NLECore/model/OtioWriter.h"
#include "NLECore/model/ParameterFacet.h"

#include <QFile>
#include <QFileInfo>

#include <iterator>

namespace nle {

namespace {

/// Bytes of the largest document that is opened.
constexpr std::int64_t kLargestDocument = 512 << 20;

/// What remarks are about, from NLERemark_Effect on.
constexpr const char* kRemarkTitles[] = {
    QT_TRANSLATE_NOOP("NLECore", "An effect was left out"),
    QT_TRANSLATE_NOOP("NLECore", "A transition was left out"),
    QT_TRANSLATE_NOOP("NLECore", "A clip of an unknown kind shows an empty picture"),
    QT_TRANSLATE_NOOP("NLECore", "A clip that plays backwards plays forwards"),
    QT_TRANSLATE_NOOP("NLECore", "A change of speed was left out or is only close"),
    QT_TRANSLATE_NOOP("NLECore", "A file is missing; its clip is offline"),
    QT_TRANSLATE_NOOP("NLECore", "A part of the document cannot be used"),
    QT_TRANSLATE_NOOP("NLECore", "Markers are kept as text only"),
    QT_TRANSLATE_NOOP("NLECore", "A volume, balance or opacity is only close")};
static_assert(std::size(kRemarkTitles) == NLERemark_Level);

HRESULT Report(NLEReason reason, const QString& path, const QString& words)
{
    return Refuse(E_FAIL, reason, path + QStringLiteral(": ") + words);
}

bool IsOtio(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("otio"), Qt::CaseInsensitive) == 0;
}

QByteArray WriteDocument(const TimelineNode& node, const QString& path)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    if (IsOtio(path))
        return OtioWriter(folder).Write(node);
    QString text;
    MltWriter(text, folder).Write(node);
    return text.toUtf8();
}

template <typename Reader>
NLEComPtr<TimelineNode> ReadWith(Reader reader, QString* error, DocumentRemarks* remarks)
{
    NLEComPtr<TimelineNode> node = reader.Read();
    *remarks = reader.Remarks();
    *error = reader.Error();
    return node;
}

NLEComPtr<TimelineNode> ReadDocument(const QByteArray& text, const QString& path, QString* error,
                                     DocumentRemarks* remarks)
{
    const QDir folder = QFileInfo(path).absoluteDir();
    if (IsOtio(path))
        return ReadWith(OtioReader(text, folder), error, remarks);
    return ReadWith(MltReader(text, folder), error, remarks);
}

} // namespace

HRESULT DocumentSerialize::Save(INLETimeline* timeline, const wchar_t* path)
{
    return ComGuard([&] {
        const TimelineNode* node = TimelineNode::From(timeline);
        if (!node || !path)
            return Refuse(E_INVALIDARG, path ? NLEReason_WrongObject : NLEReason_NullPointer);
        const QString name = FromWide(path);
        WholeFile file(name);
        if (!file.open(QIODevice::WriteOnly))
            return RefuseWriting(E_FAIL, name, file);
        file.write(WriteDocument(*node, name));
        return file.Commit() ? S_OK : RefuseWriting(E_FAIL, name, file);
    });
}

HRESULT DocumentSerialize::Load(const wchar_t* path, INLETimeline** timeline)
{
    return ComGuard([&] {
        if (!path || !timeline)
            return Refuse(E_POINTER);
        *timeline = nullptr;
        m_remarks = {};
        const QString name = FromWide(path);
        QFile file(name);
        if (!QFileInfo(name).isFile())
            return Refuse(E_FAIL, NLEReason_FileMissing, name);
        if (!file.open(QIODevice::ReadOnly))
            return Report(NLEReason_FileUnreadable, name, file.errorString());
        if (file.size() > kLargestDocument)
            return Report(NLEReason_FileUnsupported, name,
                          QStringLiteral("larger than a document may be"));
        QString error;
        NLEComPtr<TimelineNode> node = ReadDocument(file.readAll(), name, &error, &m_remarks);
        for (const DocumentRemark& remark : m_remarks.All())
            qCInfo(lcEngine, "%s: left out or changed: %s", qUtf8Printable(name),
                   qUtf8Printable(remark.Told()));
        if (!node)
            return Report(NLEReason_FileUnsupported, name, error);
        *timeline = node.detach();
        return S_OK;
    });
}

HRESULT DocumentSerialize::GetRemarkCount(int* count)
{
    return GiveValue(count, int(m_remarks.All().size()));
}

HRESULT DocumentSerialize::GetRemark(int index, int* code, wchar_t* text, int capacity)
{
    return ComGuard([&] {
        if (!code || !text)
            return Refuse(E_POINTER);
        if (index < 0 || size_t(index) >= m_remarks.All().size())
            return RefuseIndex(index, std::int64_t(m_remarks.All().size()));
        const DocumentRemark& remark = m_remarks.All()[size_t(index)];
        *code = remark.code;
        return CopyText(ToWide(remark.Told()), text, capacity);
    });
}

HRESULT DocumentSerialize::GetRemarkTitle(int code, wchar_t* title, int capacity)
{
    return ComGuard([&] {
        return code >= NLERemark_Effect && code <= NLERemark_Level
                   ? GiveTitle(kRemarkTitles[code - NLERemark_Effect], title, capacity)
                   : Refuse(E_INVALIDARG, NLEReason_UnknownIndex, QString::number(code));
    });
}

} // namespace nle
