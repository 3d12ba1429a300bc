// SPDX-License-Identifier: LGPL-2.1-or-later
#include "CommonLib/GlobalResources/CaptionEnvironment_p.h"

#include "Com/WideText.h"
#include "CommonLib/BaseLog.h"
#include "CommonLib/ModuleFolders_p.h"
#include "CommonLib/NLEWraper/CVCreateInstance.h"
#include "CommonLib/NLEWraper/EngineCall_p.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHash>
#include <QMap>

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <utility>

namespace {

constexpr char kSourcePath[] = "CommonLib/GlobalResources";
constexpr char kConstructorName[] = "CaptionEnvironment::CaptionEnvironment";
constexpr char kAddFontsName[] = "CaptionEnvironment::AddFonts";
constexpr char kAddSystemFontsName[] = "CaptionEnvironment::AddSystemFonts";
constexpr char kInitSystemFontName[] = "CaptionEnvironment::InitSystemFont";

/// What the factory's shut-down is told: that the object goes for good.
constexpr int kDeletingFlag = 1;

constexpr int kNameCapacity = 256;

ICaptionEnvironment* s_instance = nullptr;

std::wstring NativeWide(const QString& path)
{
    return ToWide(QDir::toNativeSeparators(path));
}

bool IsFontFile(const QFileInfo& entry)
{
    const QString suffix = entry.suffix();
    const char* const kinds[] = {"ttf", "otf", "ttc"};
    return std::any_of(std::begin(kinds), std::end(kinds), [&suffix](const char* kind) {
        return suffix.contains(QLatin1String(kind), Qt::CaseInsensitive);
    });
}

/// Qt's families in two forms at the same positions.
class QtFamilies
{
public:
    QtFamilies() : m_families(QFontDatabase().families())
    {
        for (int i = 0; i < m_families.size(); ++i) {
            const QString plain = Plain(m_families[i]);
            if (!m_positions.contains(plain))
                m_positions.insert(plain, i);
        }
    }

    /// The family as Qt spells it; \a name itself when it knows none.
    QString Find(const QString& name) const
    {
        const auto found = m_positions.constFind(Plain(name));
        return found == m_positions.constEnd() ? name : m_families[*found];
    }

private:
    /// Without case, and without the foundry that Qt adds to a name that two share.
    static QString Plain(const QString& family)
    {
        return family.section(QStringLiteral(" ["), 0, 0).toCaseFolded();
    }

    QStringList m_families;
    QHash<QString, int> m_positions; ///< by the plain form
};

} // namespace

ICaptionEnvironment::ICaptionEnvironment() = default;

ICaptionEnvironment::ICaptionEnvironment(const ICaptionEnvironment& other) = default;

ICaptionEnvironment& ICaptionEnvironment::operator=(const ICaptionEnvironment& other) = default;

ICaptionEnvironment::~ICaptionEnvironment() = default;

ICaptionEnvironment* ICaptionEnvironment::GetInstance()
{
    if (!s_instance)
        s_instance = new CaptionEnvironment;
    return s_instance;
}

CaptionEnvironment::CaptionEnvironment()
{
    BaseLog* log = GetGlobalLogInstance();
    if (!CVCreateInstance::Instance()->cvCreateInstance(INLEFactory::ClassId, nullptr, 0,
                                                        INLEFactory::Iid, m_factory.putVoid())) {
        log->LogInfo(kSourcePath, kConstructorName, __LINE__, "Font Factory failed");
        return;
    }
    m_factory->Init(0);
    m_library = EngineObject<INLEFontLibrary>(m_factory.get(), &INLEFactory::GetFontLibrary);
    if (!m_library) {
        log->LogInfo(kSourcePath, kConstructorName, __LINE__, "m_pFontLibrary failed");
        return;
    }
    InitFontFolder();
    InitSystemFont();
}

CaptionEnvironment::~CaptionEnvironment()
{
    if (m_factory)
        m_factory->Shutdown(kDeletingFlag);
    ClearFonts();
    m_library.reset(); // before the factory that it came from
}

void CaptionEnvironment::Release()
{
    // Not necessarily this object, whose destruction may come from here.
    delete std::exchange(s_instance, nullptr);
}

INLEFactory* CaptionEnvironment::GetFactory()
{
    return m_factory.get();
}

const QList<CaptionFont*>* CaptionEnvironment::GetFonts()
{
    return &m_fonts;
}

void CaptionEnvironment::InitFontFolder()
{
    const QString folder = FindModuleFolder("Fonts");
    m_library->SetCacheFile(NativeWide(folder + "Cache.xml").c_str());
    m_library->SetFontFolder(NativeWide(folder).c_str());
    const QFileInfoList entries = QDir(folder).entryInfoList();
    for (const QFileInfo& entry : entries) {
        if (IsFontFile(entry))
            QFontDatabase::addApplicationFont(entry.absoluteFilePath());
    }
}

void CaptionEnvironment::AddFonts(const QString& folder)
{
    if (!QFileInfo(folder).isDir() || !m_library)
        return;
    BaseLog* log = GetGlobalLogInstance();
    log->LogInfo(kSourcePath, kAddFontsName, __LINE__, "AddFonts Fontcount:%d",
                 static_cast<int>(m_fonts.size()));
    ClearFonts();
    QString completed = folder;
    if (!folder.endsWith('\\') && !folder.endsWith('/'))
        completed += QDir::separator();
    m_library->AddFontFolder(NativeWide(completed).c_str());
    InitSystemFont();
    log->LogInfo(kSourcePath, kAddFontsName, __LINE__, "AddFonts Fontcount:%d",
                 static_cast<int>(m_fonts.size()));
}

void CaptionEnvironment::AddSystemFonts()
{
    if (!m_library)
        return;
    ClearFonts();
    BaseLog* log = GetGlobalLogInstance();
    log->LogInfo(kSourcePath, kAddSystemFontsName, __LINE__, "LoadSystemFonts start");
    m_library->LoadSystemFonts();
    log->LogInfo(kSourcePath, kAddSystemFontsName, __LINE__, "LoadSystemFonts end");
    InitSystemFont();
}

void CaptionEnvironment::InitSystemFont()
{
    const QtFamilies families;
    int count = 0;
    m_library->GetFontCount(&count);
    GetGlobalLogInstance()->LogInfo(kSourcePath, kInitSystemFontName, __LINE__, "Fontcount:%d",
                                    count);
    QMap<QString, QString> sorted;
    for (int index = 0; index < count; ++index) {
        std::array<wchar_t, kNameCapacity> buffer{};
        if (FAILED(m_library->GetFontName(index, buffer.data(), kNameCapacity)))
            continue;
        const QString name = FromWide(buffer);
        sorted.insert(name, families.Find(name));
    }
    for (auto font = sorted.constBegin(); font != sorted.constEnd(); ++font)
        m_fonts.append(new CaptionFont{font.key(), font.value()});
}

void CaptionEnvironment::ClearFonts()
{
    qDeleteAll(m_fonts);
    m_fonts.clear();
}
