// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "app/PanelLanguage.h"
#include "app/Startup.h"
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"
#include "monitor/core/IndicatorNames.h"

#include <QApplication>
#include <QDirIterator>
#include <QImageReader>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Velmora;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Every resource that sources, forms and style sheet name in full.
QSet<QString> namedResources()
{
    const QRegularExpression name(QStringLiteral(":/[\\w/@]+\\.\\w+"));
    QSet<QString> names;
    for (const char* folder : {"/src", "/forms", "/resources/styles"}) {
        QDirIterator files(QStringLiteral(VELMORA_ROOT) + QLatin1String(folder), QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            auto matches = name.globalMatch(QString::fromUtf8(contentOf(files.next())));
            while (matches.hasNext())
                names.insert(matches.next().captured());
        }
    }
    return names;
}

/// What code fills in or adds to: place holders, markup, and blanks before and behind.
QStringList frameOf(const QString& text)
{
    static const QRegularExpression mark(
        QStringLiteral("%[0-9n]+|</?[A-Za-z][^>]*=[^>]*>|</[A-Za-z]+>|^\\s+|\\s+$"));
    QStringList found;
    auto matches = mark.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

} // namespace

/// What the panel reads before its window stands: ini file, catalogues, pictures, style sheet.
class PanelSetupTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void iniFileKeepsChanges();
    void languageWordChoosesTheTexts();
    void englishTextsKeepTheFrame();
    void everyPictureThatIsNamedLoads();
    void everyModelAndStateHasItsPicture();
    void styleSheetIsUnderstood();

private:
    QTemporaryDir m_folder;
};

void PanelSetupTest::initTestCase()
{
    Q_INIT_RESOURCE(velmora);
    Q_INIT_RESOURCE(translation);
    qputenv("VELMORA_CONTROL_PANEL_INI", QFile::encodeName(m_folder.filePath(QStringLiteral("panel.ini"))));
}

void PanelSetupTest::iniFileKeepsChanges()
{
    const QString address = QStringLiteral("zasilacz-łącznik.example");
    const ControlPanelConfiguration longLived;
    QCOMPARE(longLived.getServerAddress(), QString());
    QVERIFY(longLived.getCheckForUpdates());
    QVERIFY(!longLived.getDontShowAddUpsPrompt());
    {
        ControlPanelConfiguration configuration;
        configuration.setServerAddress(address);
        configuration.setCheckForUpdates(false);
        configuration.setDontShowAddUpsPrompt(true);
    }
    QVERIFY(contentOf(m_folder.filePath(QStringLiteral("panel.ini"))).contains(address.toUtf8()));
    QCOMPARE(longLived.getServerAddress(), address);
    QVERIFY(!longLived.getCheckForUpdates());
    QVERIFY(ControlPanelConfiguration().getDontShowAddUpsPrompt());

    qputenv("VELMORA_CONTROL_PANEL_INI", "/proc/version/panel.ini"); // nobody can write there
    ControlPanelConfiguration().setServerAddress(address);
    QCOMPARE(ControlPanelConfiguration().getServerAddress(), QString());
}

void PanelSetupTest::languageWordChoosesTheTexts()
{
    // Word, locale, the panel's text, Qt's and one of the catalogue of models; "chech" is in installed files.
    const QByteArray system = QLocale::system().name().toUtf8();
    for (const QByteArrayList& row :
         QVector<QByteArrayList>{{"polish", "pl", "Konfiguracja UPS", "Zachowaj", "WIRTUALNY UPS"},
                                 {"english", "en_US", "UPS configuration", "Save", "VIRTUAL UPS"},
                                 {"chech", "cs", "Konfiguracja UPS", "Save", "WIRTUALNY UPS"},
                                 {"slovak", "sk", "Konfiguracja UPS", "Save", "WIRTUALNY UPS"},
                                 {"Polish", system, "Konfiguracja UPS", "Save", "WIRTUALNY UPS"}}) {
        const QString word = QString::fromUtf8(row.at(0));
        QTranslator qtTexts;
        QTranslator panelTexts;
        Startup::installTranslators(word, qtTexts, panelTexts);
        const QStringList texts{word, panelLocaleName(word),
                                QCoreApplication::translate("VelmoraWindow", "Konfiguracja UPS"),
                                QCoreApplication::translate("QPlatformTheme", "Save"),
                                Utils::getModelShortName(QStringLiteral("Virtual_Device"))};
        QCOMPARE(texts.join(QLatin1Char('|')).toUtf8(), row.join('|'));
    }
}

void PanelSetupTest::englishTextsKeepTheFrame()
{
    const QRegularExpression polishLetter(QStringLiteral("[ąćęłńóśźżĄĆĘŁŃÓŚŹŻ]"));
    QXmlStreamReader reader(
        contentOf(QStringLiteral(VELMORA_ROOT "/resources/translation/velmora_en_US.ts")));
    QString source;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("source"))
            source = reader.readElementText();
        if (!reader.isStartElement() || reader.name() != QLatin1String("translation"))
            continue;
        const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
        QVERIFY2(frameOf(source) == frameOf(text) && !text.contains(polishLetter), qPrintable(source));
    }
    QVERIFY2(!reader.hasError() && !source.isEmpty(), qPrintable(reader.errorString()));
}

void PanelSetupTest::everyPictureThatIsNamedLoads()
{
    const QSet<QString> names = namedResources();
    QVERIFY(names.contains(QStringLiteral(":/images/images/splashscreen.png")));
    QVERIFY(names.size() > 10);
    for (const QString& name : names) {
        QVERIFY2(QFile::exists(name), qPrintable(name));
        if (name.endsWith(QLatin1String(".qss")))
            continue;
        QImageReader reader(name);
        const QImage first = reader.read();
        QVERIFY2(!first.isNull(), qPrintable(name));
        if (name.endsWith(QLatin1String(".gif")))
            QVERIFY2(reader.imageCount() > 1 && reader.read() != first, qPrintable(name));
    }
}

void PanelSetupTest::everyModelAndStateHasItsPicture()
{
    QSet<QString> families;
    const auto models = Utils::getAllSuportedModelList();
    for (const auto& model : models)
        families.insert(devicePictureName(model.configName));
    QVERIFY(!families.isEmpty());
    for (const QString& family : qAsConst(families))
        QVERIFY2(!QPixmap(family).isNull(), qPrintable(family));
    QVERIFY(!QPixmap(lostServiceIndicatorPath()).isNull());
    for (const char* status : {"on_power_line", "genset_on", "unknown", "on_battery", "genset_off",
                               "no_communication", "anything else"}) {
        QVERIFY2(!QPixmap(indicatorPath(status, false)).isNull(), status);
        QVERIFY2(!QPixmap(indicatorPath(status, true)).isNull(), status);
    }
}

void PanelSetupTest::styleSheetIsUnderstood()
{
    // Qt drops the whole sheet over one fault in it, so any of its rules tells.
    QPushButton button;
    QVERIFY(button.minimumSizeHint().height() < 33);
    Startup::setPanelStyleSheet();
    button.ensurePolished();
    QCOMPARE(button.font().pixelSize(), 11);
    QCOMPARE(button.minimumSizeHint(), QSize(108, 33)); // 100 by 25 and the border
}

QTEST_MAIN(PanelSetupTest)
#include "PanelSetupTest.moc"
