// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include "CommonLib/CommonLibExport.h"

#include <QObject>
#include <QString>

#include <memory>

class QLibrary;

/// Web addresses and other values of a customised build: an edition for a partner or a market.
///
/// The values are those of "Customization.xml" beside the executable, read by the utilities module
/// "CVUtilities.dll" of the module folders (ModuleFolders.h). Without either every value is an
/// empty text. Nothing is logged.
class COMMONLIB_EXPORT CBSUrlReader : public QObject
{
    Q_OBJECT

public:
    /// Loads the module and lets it read the file; failures show only in ReadCustomerUrl().
    explicit CBSUrlReader(QObject* parent);
    /// Unloads the module, unless another reader still uses it.
    ~CBSUrlReader() override;

    /// The value \a second of the group \a first, as the module gives it; an empty text when there
    /// is none. At most 255 characters. Every call asks the module again.
    ///
    /// A module that reports success but writes nothing gives "0".
    QString ReadCustomerUrl(const QString& first, const QString& second);

private:
    void Init();
    bool LoadUtilitiesLib();
    bool LoadXmlFile();

    std::unique_ptr<QLibrary> m_module; ///< null when not loaded
};
