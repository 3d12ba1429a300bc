// SPDX-License-Identifier: LGPL-2.1-or-later
// example_join FILE MEDIA…: plays media files one after the other into a new file.
#include <CommonLib/CommonLib.h>

#include <QGuiApplication>
#include <QTextStream>

namespace {

/// A project of the clips in a row; null when one of them cannot be read.
NLEComPtr<INLETimeline> Row(PlayerMaterProvider& provider, const QStringList& media)
{
    const NLEComPtr<INLETimeline> root = provider.CreateProjectTimeline();
    if (!root)
        return nullptr;
    NLETimeline project(root, ExactType_Project, nullptr);
    int position = 0;
    for (const QString& path : media) {
        const NLEComPtr<INLETimeline> node = provider.CreateMediaTimeline(path, false);
        if (!node)
            return nullptr;
        NLETimeline clip(node, ExactType_Video, nullptr);
        project.AddClipSuper(&clip, position, 0);
        position += clip.GetPlayLen(); // of the project's frames, as soon as it holds the clip
    }
    return root;
}

int ShowProgress(int percent, void*)
{
    QTextStream(stdout) << '\r' << percent << " %" << Qt::flush;
    return 0; // anything else stops
}

QString Join(const QString& file, const QStringList& media)
{
    PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
    const NLEComPtr<INLETimeline> project = Row(*provider, media);
    const NLEComPtr<INLEMediaEncoder> encoder = provider->CreateMediaEncoder();
    if (!project || !encoder)
        return QStringLiteral("the engine is missing, or a file is no media");
    const HRESULT opened = encoder->Open(project.get(), file.toStdWString().c_str(), nullptr);
    if (FAILED(opened))
        return QStringLiteral("%1 cannot be written: 0x%2").arg(file).arg(quint32(opened), 8, 16);
    const HRESULT encoded = encoder->Encode(ShowProgress, nullptr);
    QTextStream(stdout) << '\n';
    return encoded == S_OK ? QString() : QStringLiteral("the export failed");
}

} // namespace

int main(int argc, char* argv[])
{
    QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        QTextStream(stderr) << "usage: example_join FILE MEDIA…\n";
        return 2;
    }
    const QString failure = Join(arguments[1], arguments.mid(2));
    NLEWraper::Release();
    CVCreateInstance::Instance()->Release();
    if (failure.isEmpty())
        return 0;
    QTextStream(stderr) << failure << '\n';
    return 1;
}
