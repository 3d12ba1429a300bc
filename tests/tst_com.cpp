// SPDX-License-Identifier: LGPL-2.1-or-later
#include "Com/ClassFactory.h"
#include "Com/WideText.h"

#include <QtTest>

#include <functional>

namespace {

struct IBase : IUnknown
{
    static constexpr _GUID Iid = {0xBA5E, 0, 0, {0, 0, 0, 0, 0, 0, 0, 1}};
};
struct IDerived : IBase
{
    static constexpr _GUID Iid = {0xDE, 0, 0, {0, 0, 0, 0, 0, 0, 0, 2}};
};

/// Counts references itself, so that a pointer that takes or gives one too many shows.
class Counted final : public IDerived
{
public:
    HRESULT QueryInterface(REFIID iid, void** out) override
    {
        // What a failed query leaves here must not be released.
        *out = static_cast<IDerived*>(this);
        if (iid != IDerived::Iid)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG AddRef() override { return ++references; }
    ULONG Release() override { return --references; }

    ULONG references = 1;
};

using Pointer = NLEComPtr<IDerived>;

/// What a module exports; the class counts what is left of its objects.
class Made final : public ComObject<IDerived>
{
public:
    Made() { ++s_living; }
    static int s_living;

protected:
    ~Made() override { --s_living; }
};
int Made::s_living = 0;

HRESULT GiveMade(REFCLSID /*classId*/, REFIID iid, void** out)
{
    return GiveClassFactory<Made>(iid, out);
}
HRESULT GiveNothing(REFCLSID /*classId*/, REFIID /*iid*/, void** out)
{
    *out = nullptr;
    return S_OK;
}
HRESULT RefuseAndLeave(REFCLSID /*classId*/, REFIID /*iid*/, void** out)
{
    *out = reinterpret_cast<void*>(quintptr(8)); // not an object: releasing it would crash
    return CLASS_E_CLASSNOTAVAILABLE;
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Counted&)>)
Q_DECLARE_METATYPE(DllGetClassObjectFunction)
Q_DECLARE_METATYPE(std::wstring)

class TestCom : public QObject
{
    Q_OBJECT

private slots:
    /// Each row uses an object through pointers; all references but the maker's are back
    /// afterwards.
    void references_data()
    {
        QTest::addColumn<std::function<void(Counted&)>>("use");
        const auto row = [](const char* name, const std::function<void(Counted&)>& use) {
            QTest::newRow(name) << use;
        };
        row("a pointer takes a reference and gives it back", [](Counted& object) {
            const Pointer pointer(&object);
            QCOMPARE(object.references, 2u);
        });
        row("a copy takes another", [](Counted& object) {
            const Pointer pointer(&object);
            const Pointer copy(pointer); // NOLINT(performance-unnecessary-copy-initialization)
            QCOMPARE(object.references, 3u);
        });
        row("a move takes none, also to the base", [](Counted& object) {
            Pointer pointer(&object);
            Pointer moved(std::move(pointer));
            const NLEComPtr<IBase> base(std::move(moved));
            QCOMPARE(object.references, 2u);
            QCOMPARE(base.get(), &object);
            QVERIFY(moved == nullptr); // NOLINT(bugprone-use-after-move)
        });
        row("assigning a pointer to itself keeps the object", [](Counted& object) {
            Pointer pointer(&object);
            const Pointer& same = pointer;
            pointer = same;
            QCOMPARE(object.references, 2u);
        });
        row("attach takes the caller's reference, detach hands it back", [](Counted& object) {
            Pointer pointer;
            pointer.attach(&object);
            QCOMPARE(object.references, 1u);
            QCOMPARE(pointer.detach(), &object);
            QVERIFY(pointer == nullptr);
        });
        row("put releases what was held", [](Counted& object) {
            Pointer pointer(&object);
            QVERIFY(*pointer.put() == nullptr);
            QCOMPARE(object.references, 1u);
        });
        row("copyTo gives a new reference", [](Counted& object) {
            IDerived* out = nullptr;
            QCOMPARE(Pointer(&object).copyTo(&out), S_OK);
            QCOMPARE(object.references, 2u);
            out->Release();
        });
        row("a query holds the other interface", [](Counted& object) {
            const auto found = Pointer(&object).query<IDerived>();
            QVERIFY(found != nullptr);
            QCOMPARE(object.references, 2u);
        });
        row("a refused query is null and releases nothing", [](Counted& object) {
            QVERIFY(Pointer(&object).query<IBase>() == nullptr);
            QCOMPARE(object.references, 1u);
        });
    }

    void references()
    {
        QFETCH(std::function<void(Counted&)>, use);
        Counted object;
        use(object);
        QCOMPARE(object.references, 1u);
    }

    void objectsOfAModule_data()
    {
        QTest::addColumn<DllGetClassObjectFunction>("entry");
        QTest::addColumn<HRESULT>("result");
        QTest::newRow("a class that is known") << &GiveMade << HRESULT(S_OK);
        QTest::newRow("success without a factory") << &GiveNothing << HRESULT(E_FAIL);
        QTest::newRow("a refusal that leaves something behind")
            << &RefuseAndLeave << HRESULT(CLASS_E_CLASSNOTAVAILABLE);
    }

    void objectsOfAModule()
    {
        QFETCH(DllGetClassObjectFunction, entry);
        QFETCH(HRESULT, result);
        NLEComPtr<IDerived> object;
        QCOMPARE(CreateThrough(entry, IDerived::Iid, nullptr, IDerived::Iid, object.putVoid()),
                 result);
        QCOMPARE(object != nullptr, SUCCEEDED(result));
        QCOMPARE(Made::s_living, SUCCEEDED(result) ? 1 : 0);
        object.reset();
        QCOMPARE(Made::s_living, 0);
    }

    /// Objects cannot become part of another's identity.
    void noAggregation()
    {
        Counted outer;
        void* out = &outer;
        QCOMPARE(CreateThrough(&GiveMade, IDerived::Iid, &outer, IDerived::Iid, &out),
                 HRESULT(CLASS_E_NOAGGREGATION));
        QVERIFY(!out);
    }

    void wideText_data()
    {
        using Units = QVector<ushort>;
        QTest::addColumn<std::wstring>("wide");
        QTest::addColumn<Units>("units");
        QTest::newRow("a byte order mark") << std::wstring(L"\xFEFF-") << Units{0xFEFF, '-'};
        QTest::newRow("one of the other order") << std::wstring(L"\xFFFE-") << Units{0xFFFE, '-'};
        QTest::newRow("halves of characters")
            << std::wstring(L"\xDC00-\xD83D") << Units{0xDC00, '-', 0xD83D};
        QTest::newRow("beyond the basic plane")
            << std::wstring(L"-\U0010FFFF") << Units{'-', 0xDBFF, 0xDFFF};
    }
    void wideText()
    {
        QFETCH(std::wstring, wide);
        QFETCH(QVector<ushort>, units);
        const QString text = FromWide(wide);
        QCOMPARE(QVector<ushort>(text.utf16(), text.utf16() + text.size()), units);
        QVERIFY(ToWide(text) == wide);
    }
};

QTEST_APPLESS_MAIN(TestCom)
#include "tst_com.moc"
