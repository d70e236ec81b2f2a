// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString context;
    QString source;
    QString translation;
    QString type; ///< "unfinished", "vanished", "obsolete" or empty
};

QVector<Message> readCatalogue(QIODevice& file, QString& error)
{
    QVector<Message> messages;
    QXmlStreamReader reader(&file);
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            messages.append({context, reader.readElementText(), QString(), QString()});
        } else if (reader.name() == QLatin1String("translation") && !messages.isEmpty()) {
            messages.last().type = reader.attributes().value(QLatin1String("type")).toString();
            messages.last().translation = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    error = reader.errorString();
    return messages;
}

QStringList markers(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator match =
        QRegularExpression(QStringLiteral("%[0-9n]+|</?[A-Za-z][^>]*=[^>]*>|</[A-Za-z]+>")).globalMatch(text);
    while (match.hasNext())
        found.append(match.next().captured());
    found.sort();
    return found;
}

QString margin(const QString& text, bool leading)
{
    const QRegularExpression pattern(leading ? QStringLiteral("^\\s*") : QStringLiteral("\\s*$"));
    return pattern.match(text).captured();
}

} // namespace

/// What code does with a text, such as filling a marker or adding behind a blank, works in both languages
/// only if the English one keeps the same frame.
class EnglishCatalogueTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyTextIsTranslatedInTheSameFrame();
};

void EnglishCatalogueTest::everyTextIsTranslatedInTheSameFrame()
{
    QFile file(QStringLiteral(VELMORA_ENGLISH_CATALOGUE));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    QString error;
    const QVector<Message> messages = readCatalogue(file, error);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    QVERIFY(!messages.isEmpty());

    QStringList faults;
    const QRegularExpression polishLetter(QStringLiteral("[ąćęłńóśźżĄĆĘŁŃÓŚŹŻ]"));
    for (const Message& message : messages) {
        const bool sound = message.type.isEmpty() && !message.translation.isEmpty() &&
                           markers(message.source) == markers(message.translation) &&
                           margin(message.source, true) == margin(message.translation, true) &&
                           margin(message.source, false) == margin(message.translation, false) &&
                           !message.translation.contains(polishLetter);
        if (!sound)
            faults.append(message.context + QLatin1String(": ") + message.source);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(EnglishCatalogueTest)

#include "EnglishCatalogueTest.moc"
