// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/ModuleErrors.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/NLEWraper.h"
#include "CommonLib/NLEWraper/PlayerMaterProvider.h"
#include "CommonLib/WpdApiLib/WpdApiLib.h"
#include "tests/support/LogCapture.h"

#include <QtTest>

/// Runs in a folder without an engine core library.
class tst_ProviderMissing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        NLEWraper::Release();
        CVCreateInstance::Instance()->Release();
    }

    void startIsLoggedAndEveryResultIsNull()
    {
        LogCapture log;
        PlayerMaterProvider* provider = NLEWraper::GetInstance(nullptr)->GetPlayerMaterProvider();
        provider->OpenCLGpuInit();
        QVERIFY(!provider->CreateProjectTimeline());
        QVERIFY(!provider->CreateMediaTimeline("/none", true));
        QVERIFY(!provider->CreateVideoFrame(2, 2));
        QVERIFY(!provider->CreateThumbnailExtractor());
        QCOMPARE(provider->GetDefualtProfile().frameRate.den, std::int64_t(1));
        const QStringList expected = {
            "-INFO- [PlayerMaterProviderPrivate::PlayerMaterProviderPrivate]:  INLEFactory Create "
            "failed. - [CommonLib/NLEWraper/PlayerMaterProviderPrivate(28)]",
            "-INFO- [PlayerMaterProviderPrivate::PlayerMaterProviderPrivate]:  Check NLECore "
            "Exist:0 - "
            "[CommonLib/NLEWraper/PlayerMaterProviderPrivate(31)]",
            "-INFO- [PlayerMaterProviderPrivate::OpenCLGpuInit]:  m_pNLEOpenCLGpuFactory Create "
            "failed. - [CommonLib/NLEWraper/PlayerMaterProviderPrivate(67)]"};
        QCOMPARE(log.Take(), expected);
        QVERIFY2(ModuleLoadError("NLECore.dll").contains("NLECore.dll"),
                 qPrintable(ModuleLoadError("NLECore.dll")));
    }

    void noDevicesWithoutTheirService()
    {
        QCOMPARE(WpdApiLib::EnumerateAllDevices(nullptr, nullptr), 0ul);
        QCOMPARE(WpdApiLib::ChooseDevice(L"phone", nullptr), 0);
        if (QSysInfo::kernelType() == "linux")
            QVERIFY(!ModuleLoadError("PortableDevices.dll").isEmpty());
        QCOMPARE(ModuleLoadError("CVUtilities.dll"), QString()); // nobody asked for it
    }

    void unusableModule()
    {
        QFile module(QCoreApplication::applicationDirPath() + "/NLECore.dll");
        QVERIFY(module.open(QIODevice::WriteOnly));
        module.close();
        LogCapture log;
        NLEWraper::GetInstance(nullptr);
        QVERIFY(module.remove());
        QVERIFY(log.Take().last().contains("Check NLECore Exist:1"));
        const QString unusable = ModuleLoadError("NLECore.dll");
        NLEWraper::Release();
        NLEWraper::GetInstance(nullptr);
        const QString missing = ModuleLoadError("NLECore.dll");
        QVERIFY2(unusable.contains("NLECore.dll") && unusable != missing, qPrintable(unusable));
    }
};

QTEST_GUILESS_MAIN(tst_ProviderMissing)
#include "tst_provider_missing.moc"
