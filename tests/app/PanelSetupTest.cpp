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
#include <QLabel>
#include <QMovie>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

using namespace Velmora;

namespace {

QStringList warnings;

void keepWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        warnings.append(message);
}

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

} // namespace

/// What the panel reads before its window stands: ini file, catalogues, pictures, style sheet.
class PanelSetupTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void missingFileGivesDefaults();
    void changesReachTheFileAndEveryOtherObject();
    void unwritableFileLosesTheChangeSilently();
    void languageWordChoosesTheTexts_data();
    void languageWordChoosesTheTexts();
    void everyPictureThatIsNamedLoads();
    void everyModelAndStateHasItsPicture();
    void animationsMove();
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

void PanelSetupTest::missingFileGivesDefaults()
{
    const ControlPanelConfiguration configuration;
    QCOMPARE(configuration.getServerAddress(), QString());
    QCOMPARE(configuration.getLanguage(), QString());
    QVERIFY(configuration.getCheckForUpdates());
    QVERIFY(!configuration.getDontShowAddUpsPrompt());
}

void PanelSetupTest::changesReachTheFileAndEveryOtherObject()
{
    const QString address = QStringLiteral("zasilacz-łącznik.example");
    const ControlPanelConfiguration longLived;
    {
        ControlPanelConfiguration configuration;
        configuration.setServerAddress(address);
        configuration.setCheckForUpdates(false);
        configuration.setDontShowAddUpsPrompt(true);
    }
    QVERIFY(contentOf(m_folder.filePath(QStringLiteral("panel.ini"))).contains("zasilacz-łącznik.example"));
    QCOMPARE(longLived.getServerAddress(), address);
    QVERIFY(!longLived.getCheckForUpdates());
    QVERIFY(ControlPanelConfiguration().getDontShowAddUpsPrompt());
}

void PanelSetupTest::unwritableFileLosesTheChangeSilently()
{
    const QByteArray writable = qgetenv("VELMORA_CONTROL_PANEL_INI");
    qputenv("VELMORA_CONTROL_PANEL_INI", "/proc/version/panel.ini");
    ControlPanelConfiguration().setServerAddress(QStringLiteral("10.0.0.1"));
    QCOMPARE(ControlPanelConfiguration().getServerAddress(), QString());
    qputenv("VELMORA_CONTROL_PANEL_INI", writable);
}

void PanelSetupTest::languageWordChoosesTheTexts_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("panelText");
    QTest::addColumn<QString>("saveButton");
    const QString system = QLocale::system().name();
    QTest::newRow("Polish: source texts, Qt's in Polish") << "polish"
                                                          << "pl"
                                                          << "Konfiguracja UPS"
                                                          << "Zachowaj";
    QTest::newRow("English: translated texts, Qt's own") << "english"
                                                         << "en_US"
                                                         << "UPS configuration"
                                                         << "Save";
    QTest::newRow("Czech by the word of installed files") << "chech"
                                                          << "cs"
                                                          << "Konfiguracja UPS"
                                                          << "Save";
    QTest::newRow("Slovak has no catalogue") << "slovak"
                                             << "sk"
                                             << "Konfiguracja UPS"
                                             << "Save";
    QTest::newRow("another word means the system's locale") << "Polish" << system << "Konfiguracja UPS"
                                                            << "Save";
}

void PanelSetupTest::languageWordChoosesTheTexts()
{
    QFETCH(QString, word);
    QTEST(panelLocaleName(word), "locale");
    QTranslator qtTexts;
    QTranslator panelTexts;
    Startup::installTranslators(word, qtTexts, panelTexts);
    QTEST(QCoreApplication::translate("VelmoraWindow", "Konfiguracja UPS"), "panelText");
    QTEST(QCoreApplication::translate("QPlatformTheme", "Save"), "saveButton");
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") == QLatin1String("Anuluj"),
             word == QLatin1String("polish"));
}

void PanelSetupTest::everyPictureThatIsNamedLoads()
{
    const QSet<QString> names = namedResources();
    QVERIFY(names.contains(QStringLiteral(":/images/images/splashscreen.png")));
    QVERIFY(names.size() > 10);
    for (const QString& name : names) {
        QVERIFY2(QFile::exists(name), qPrintable(name));
        if (!name.endsWith(QLatin1String(".qss")))
            QVERIFY2(!QImageReader(name).read().isNull(), qPrintable(name));
    }
}

void PanelSetupTest::everyModelAndStateHasItsPicture()
{
    QSet<QString> families;
    const auto models = Utils::getAllSuportedModelList();
    for (const auto& model : models)
        families.insert(devicePictureName(model.configName));
    QCOMPARE(families.size(), 36);
    for (const QString& family : qAsConst(families))
        QVERIFY2(!QPixmap(family).isNull(), qPrintable(family));
    QVERIFY(!QPixmap(lostServiceIndicatorPath()).isNull());
    for (const char* status : {"on_power_line", "genset_on", "unknown", "on_battery", "genset_off",
                               "no_communication", "anything else"}) {
        QVERIFY2(!QPixmap(indicatorPath(status, false)).isNull(), status);
        QVERIFY2(!QPixmap(indicatorPath(status, true)).isNull(), status);
    }
}

void PanelSetupTest::animationsMove()
{
    for (const QString& name : namedResources()) {
        if (!name.endsWith(QLatin1String(".gif")))
            continue;
        QMovie movie(name);
        QVERIFY2(movie.isValid() && movie.frameCount() > 1, qPrintable(name));
        movie.jumpToFrame(0);
        const QImage first = movie.currentImage();
        movie.jumpToNextFrame();
        QVERIFY2(movie.currentImage() != first, qPrintable(name));
    }
}

void PanelSetupTest::styleSheetIsUnderstood()
{
    qInstallMessageHandler(keepWarnings);
    Startup::setPanelStyleSheet();
    QLabel label;
    label.ensurePolished();
    const QFont font = label.font();
    qApp->setStyleSheet(QStringLiteral("broken {"));
    label.ensurePolished();
    const QStringList all = warnings;
    qApp->setStyleSheet(QString());
    qInstallMessageHandler(nullptr);
    QCOMPARE(font.pixelSize(), 11);
    QCOMPARE(all, QStringList{QStringLiteral("Could not parse application stylesheet")});
}

QTEST_MAIN(PanelSetupTest)
#include "PanelSetupTest.moc"
