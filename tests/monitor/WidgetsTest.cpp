// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/DebugWarningWidget.h"
#include "monitor/widgets/LineEditWidget.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ProgressBarWidget.h"
#include "monitor/widgets/VLStatusWidget.h"
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMovie>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

using namespace Velmora;
using namespace Velmora::Tests;

namespace {

template <typename T>
T* part(const QWidget& widget, const char* name)
{
    return widget.findChild<T*>(QLatin1String(name));
}

const QString modelReason = QStringLiteral("Dane niedostępne w wybranym modelu");

} // namespace

class WidgetsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void cleanup() { closeStrayWindows(); }
    void textFieldTellsWhyItHasNoValue();
    void barShowsValuesBeyondItsEndsAndMissingOnes();
    void stripShowsTheLinks();
    void stripTurnsItsSpinnersOnlyWhileConnecting();
    void debugWarningBlinksAndKeepsItsPlace();
    void messageBoxShowsPlainTextWithoutWaiting();
};

void WidgetsTest::textFieldTellsWhyItHasNoValue()
{
    LineEditWidget field;
    field.resize(field.sizeHint());
    field.QWidget::show();
    const auto* edit = part<QLineEdit>(field, "lineEdit");
    auto* help = part<QPushButton>(field, "helpButton");
    const auto reason = [help] {
        QTest::mouseClick(help, Qt::LeftButton);
        return QToolTip::text();
    };
    QVERIFY(help->isHidden());
    static_cast<AbstractWidget&>(field).setEnabled(false);
    QVERIFY(!edit->isEnabled());
    field.setDefaultText();
    QCOMPARE(edit->text(), QStringLiteral("N/D"));
    QVERIFY2(help->isVisible() && help->isEnabled(), "a disabled field can still give its reason");
    QCOMPARE(reason(), modelReason);
    field.defaultTooltip(false);
    QCOMPARE(reason(), QStringLiteral("Dane niedostępne przy użyciu wybranego interfejsu komunikacyjnego"));
    field.setText(QStringLiteral("31"));
    QVERIFY(help->isHidden());
    field.setDefaultText();
    field.setEnabled(false);
    QVERIFY(help->isHidden() && field.text().isEmpty());
}

void WidgetsTest::barShowsValuesBeyondItsEndsAndMissingOnes()
{
    ProgressBarWidget field;
    field.QWidget::show();
    const auto* bar = part<QProgressBar>(field, "progressBar");
    auto* help = part<QPushButton>(field, "helpButton");
    const auto shown = [bar] { return QString(bar->text() + QStringLiteral(" [%1]").arg(bar->value())); };
    field.setValue(-5);
    QCOMPARE(shown(), QStringLiteral("-5 % [0]"));
    field.setDefaultValue();
    QCOMPARE(shown(), QStringLiteral("N/D [0]"));
    QTest::mouseClick(help, Qt::LeftButton);
    QCOMPARE(QToolTip::text(), modelReason);
    static_cast<AbstractWidget&>(field).setEnabled(false);
    QCOMPARE(bar->text(), QString());
    QVERIFY(help->isHidden() && !bar->isEnabled());
}

void WidgetsTest::stripShowsTheLinks()
{
    using State = VLStatusConnectionState;
    VLStatusWidget strip;
    strip.show();
    const auto* note = part<QLabel>(strip, "serviceNote");
    const auto* device = part<QLabel>(strip, "deviceText");
    const auto* countdown = part<QLabel>(strip, "countdownText");
    const auto connect = [&strip](State state) {
        strip.setServiceConnectionState(state, QStringLiteral("host"));
    };
    strip.setUpsConnectionState(State::Connected);
    QVERIFY(device->text().isEmpty());
    connect(State::Connected);
    QCOMPARE(part<QLabel>(strip, "serviceAddress")->textFormat(), Qt::PlainText);
    QVERIFY(note->isVisible());
    strip.setServiceVersion(QStringLiteral(VELMORA_VERSION));
    connect(State::Connected);
    QVERIFY2(!note->isVisible(), "the version outlives a repeated state");
    connect(State::Disconnected);
    QCOMPARE(device->text(), QStringLiteral("Komunikacja z UPS nieznana"));
    strip.showPowerOffTimer(30);
    QVERIFY(!countdown->isVisible());
    strip.setDeviceType(VLDeviceType::Genset);
    QCOMPARE(device->text(), QStringLiteral("Komunikacja z agregatem\nnieznana"));
    connect(State::Connected);
    QCOMPARE(note->isVisible() ? note->text() : QString(), QStringLiteral("Niezgodna wersja usługi"));
    QCOMPARE(device->text(), QStringLiteral("Połączono z agregatem"));
    QVERIFY(countdown->isVisible());
}

void WidgetsTest::stripTurnsItsSpinnersOnlyWhileConnecting()
{
    VLStatusWidget strip;
    for (int i = 0; i < 2; ++i) {
        strip.setServiceConnectionState(VLStatusConnectionState::Connecting, {});
        const auto* movie = part<QLabel>(strip, "serviceIcon")->movie();
        const auto* deviceMovie = part<QLabel>(strip, "deviceIcon")->movie();
        if (!movie || !deviceMovie || movie == deviceMovie)
            QFAIL("each icon turns a spinner of its own");
        QVERIFY(movie->state() == QMovie::Running && deviceMovie->state() == QMovie::Running);
        strip.setServiceConnectionState(VLStatusConnectionState::Connected, {});
        QVERIFY(movie->state() == QMovie::NotRunning && deviceMovie->state() == QMovie::NotRunning);
        QVERIFY(!part<QLabel>(strip, "serviceIcon")->movie());
    }
}

void WidgetsTest::debugWarningBlinksAndKeepsItsPlace()
{
    DebugWarningWidget warning;
    const QSize place = warning.sizeHint();
    // The window stands in the tray: only the labels' own flags tell whether they are on.
    const auto isHidden = [&warning](bool hidden) {
        const auto labels = warning.findChildren<QLabel*>();
        return labels.size() == 2 && labels.at(0)->isHidden() == hidden && labels.at(1)->isHidden() == hidden;
    };
    warning.startDebugWarning();
    QTRY_VERIFY(isHidden(false));
    for (const bool hidden : {true, false}) {
        warning.timeout();
        QVERIFY(isHidden(hidden));
        QCOMPARE(warning.sizeHint(), place);
    }
    warning.stopDebugWarning();
    QVERIFY(isHidden(true) && !place.isEmpty());
    QCOMPARE(warning.sizeHint(), place);
}

void WidgetsTest::messageBoxShowsPlainTextWithoutWaiting()
{
    Utils::displayMsgBox(QStringLiteral("Title"), QStringLiteral("<b>bold</b>\nsecond line"));
    QPointer<QMessageBox> box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box && box->isVisible() && !box->parent());
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QVERIFY(!box->windowIcon().isNull());
    box->close();
    QTRY_VERIFY(!box);
}

QTEST_MAIN(WidgetsTest)
#include "WidgetsTest.moc"
