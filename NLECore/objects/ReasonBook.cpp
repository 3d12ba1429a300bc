// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/objects/ReasonBook.h"

#include "NLECore/media/Reasons.h"
#include "NLECore/scene/Parameters.h"

namespace nle {

namespace {

/// Appends to a caller's buffer, cuts at its end, and ends with a zero.
class Writer
{
public:
    Writer(wchar_t* buffer, int capacity) : m_next(buffer), m_left(capacity - 1)
    {
        *m_next = L'\0';
    }

    template <typename Char>
    void Add(const Char* text)
    {
        for (; *text != Char(0) && m_left > 0; ++text, --m_left)
            *m_next++ = wchar_t(*text);
        *m_next = L'\0';
    }

private:
    wchar_t* m_next;
    int m_left;
};

bool CanWrite(const wchar_t* buffer, int capacity)
{
    return buffer && capacity > 0;
}

} // namespace

HRESULT ReasonBook::GetLast(HRESULT* result, int* reason)
{
    const LastFailure& last = LastFailureOfThread();
    if (result)
        *result = last.result;
    if (reason)
        *reason = last.reason;
    return last.reason == NLEReason_None ? S_FALSE : S_OK;
}

HRESULT ReasonBook::GetText(wchar_t* text, int capacity)
{
    if (!CanWrite(text, capacity))
        return E_INVALIDARG;
    const LastFailure& last = LastFailureOfThread();
    Writer writer(text, capacity);
    if (last.reason == NLEReason_None)
        return S_OK;
    writer.Add(TitleOf(last.reason));
    if (*last.words != L'\0')
        writer.Add(": ");
    writer.Add(last.words);
    return S_OK;
}

HRESULT ReasonBook::GetWords(wchar_t* words, int capacity)
{
    if (!CanWrite(words, capacity))
        return E_INVALIDARG;
    Writer(words, capacity).Add(LastFailureOfThread().words);
    return S_OK;
}

HRESULT ReasonBook::Forget()
{
    LastFailureOfThread() = {};
    return S_OK;
}

HRESULT ReasonBook::GetTitle(int reason, wchar_t* title, int capacity)
{
    const char* const english = TitleOf(reason);
    if (!english || !CanWrite(title, capacity))
        return E_INVALIDARG;
    try {
        Writer(title, capacity).Add(Translated(english).toStdWString().c_str());
    } catch (...) {
        Writer(title, capacity).Add(english);
    }
    return S_OK;
}

} // namespace nle
