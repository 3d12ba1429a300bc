// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "EngineApi/INLEFactory.h"
#include "tests/support/EngineFixture.h"

/// The open engine, and what it reads from a document of a text; the suffix of its name chooses the
/// format.
class DocumentFixture : public EngineFixture
{
public:
    explicit DocumentFixture(const char* name) : m_name(name) {}

    /// Null for what is no document.
    Node Parse(const QByteArray& text) const
    {
        Node node;
        if (SetContents(Path(m_name), text))
            m_document->Load(Path(m_name).toStdWString().c_str(), node.put());
        return node;
    }
    /// Codes of what was left out of the last document, in their order.
    QList<int> Remarks() const
    {
        const auto report = m_document.query<INLEDocumentReport>();
        int count = -1;
        report->GetRemarkCount(&count);
        QList<int> codes;
        for (int i = 0; i < count; ++i) {
            int code = 0;
            wchar_t text[200] = L"";
            if (report->GetRemark(i, &code, text, 200) != S_OK || !*text)
                return {-1};
            codes << code;
        }
        return codes;
    }

private:
    const char* m_name;
    NLEComPtr<INLEDocumentSerialize> m_document = provider->CreateDocumentSerialize();
};
