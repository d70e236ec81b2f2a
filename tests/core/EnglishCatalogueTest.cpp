// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {

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

// The blanks before and behind a text.
QString margins(const QString& text)
{
    const QString core = text.trimmed();
    return QString(text).replace(core, QLatin1String("_"));
}

bool keepsTheFrame(const QString& source, const QString& translation)
{
    static const QRegularExpression polishLetter(QStringLiteral("[ąćęłńóśźżĄĆĘŁŃÓŚŹŻ]"));
    return !translation.isEmpty() && markers(source) == markers(translation) &&
           margins(source) == margins(translation) && !translation.contains(polishLetter);
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
    QStringList faults;
    QString source;
    int messages = 0;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        if (!reader.isStartElement() || reader.name() != QLatin1String("translation"))
            continue;
        ++messages;
        // Unfinished, vanished or obsolete.
        const bool typed = reader.attributes().hasAttribute(QLatin1String("type"));
        if (typed || !keepsTheFrame(source, reader.readElementText(QXmlStreamReader::IncludeChildElements)))
            faults.append(source);
    }
    QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    QVERIFY(messages > 0);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_GUILESS_MAIN(EnglishCatalogueTest)

#include "EnglishCatalogueTest.moc"
