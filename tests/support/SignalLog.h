// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/UpsSocketController.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QStringList>

#include <memory>
#include <vector>

namespace Velmora::Tests {

/// Tells every signal of the link since it was made as "name(arguments)", in the order of the signals'
/// declarations. Records read as "*": what is in them is the readers' matter.
class SignalLog final
{
public:
    explicit SignalLog(const UpsSocketController& link)
    {
        const QMetaObject* meta = link.metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                m_spies.push_back(std::make_unique<QSignalSpy>(&link, meta->method(i)));
        }
    }

    [[nodiscard]] QStringList entries() const
    {
        QStringList all;
        for (const auto& spy : m_spies) {
            for (const QVariantList& arguments : qAsConst(*spy)) {
                QStringList texts;
                for (const QVariant& argument : arguments)
                    texts += textOf(argument);
                const QString name = QString::fromLatin1(spy->signal()).section(QLatin1Char('('), 0, 0);
                all += name + QLatin1Char('(') + texts.join(QLatin1Char(':')) + QLatin1Char(')');
            }
        }
        return all;
    }

    void clear()
    {
        for (const auto& spy : m_spies)
            spy->clear();
    }

private:
    static QString textOf(const QVariant& value)
    {
        if (!value.canConvert<QVariantList>() && !value.canConvert<QVariantMap>())
            return value.toString();
        QStringList parts;
        const auto map = value.value<QVariantMap>();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
            parts += entry.key() + QLatin1Char('=') + entry->toString();
        const auto elements = value.value<QVariantList>();
        for (const QVariant& element : elements)
            parts += element.canConvert<QString>() ? element.toString() : QStringLiteral("*");
        return parts.join(QLatin1Char(','));
    }

    std::vector<std::unique_ptr<QSignalSpy>> m_spies;
};

} // namespace Velmora::Tests
