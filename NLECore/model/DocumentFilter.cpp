// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NLECore/model/DocumentFilter.h"

#include <QCryptographicHash>

namespace nle {

namespace {

constexpr int kSumDigits = 12;

/// Names and texts of all that decides what a filter does, in their order.
DocumentTexts AllTexts(const DocumentFilter& filter)
{
    DocumentTexts texts = filter.properties;
    if (filter.range) {
        texts.emplace_back(QStringLiteral("in"), QString::number(filter.range->in));
        texts.emplace_back(QStringLiteral("out"), QString::number(filter.range->out));
    }
    return texts;
}

QString SumOf(const DocumentTexts& texts)
{
    QCryptographicHash hash(QCryptographicHash::Md5);
    QStringList names;
    for (const auto& [name, text] : texts) {
        names << name;
        hash.addData((name + QLatin1Char('=') + text + QLatin1Char('\n')).toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex().left(kSumDigits)) + QLatin1Char(' ') +
           names.join(QLatin1Char(' '));
}

} // namespace

QString FilterSum(const DocumentFilter& filter)
{
    return SumOf(AllTexts(filter));
}

bool FilterIsAsWritten(const DocumentFields& properties, const QString& sum)
{
    DocumentTexts texts;
    for (const QString& name : sum.split(QLatin1Char(' ')).mid(1))
        texts.emplace_back(name, properties.value(name));
    const bool isOff = properties.contains(QStringLiteral("disable")) &&
                       properties.value(QStringLiteral("disable")) != QLatin1String("0");
    return !texts.empty() && !isOff && SumOf(texts) == sum;
}

} // namespace nle
