// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>

#include <optional>

/// The ini file that the choice of a language is kept in.
class LanguageConfig
{
public:
    explicit LanguageConfig(QString path);

    /// Creates an empty file; one that exists keeps what it holds.
    void CreateWhenMissing() const;
    /// The name of the chosen language, empty when there is none; nothing when the file cannot be
    /// read.
    std::optional<QString> Name() const;
    /// Puts the name of the chosen language and its product in, beside what others keep there. The
    /// file stays as it was when not all of it can be written, and when it is none of ours. What a
    /// process that was killed had half written goes.
    void Store(const QString& name, const QString& product) const;

private:
    bool IsUsable() const;

    QString m_path;
};
