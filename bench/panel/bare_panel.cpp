// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What the panel is measured against: its window as a bare Qt program would show it, with the same style,
// font, style sheet, splash, form and number of widgets, without logic and with Qt's defaults. With
// --changing every field of the state panel changes once a second.

#include "ui_VelmoraWindow.h"

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QPixmap>
#include <QSplashScreen>
#include <QStyleFactory>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int changeInterval = 1000;

void addLabels(QLayout* layout, int count, const QString& text)
{
    for (int i = 0; i < count; ++i)
        layout->addWidget(new QLabel(text));
}

class BareWindow final : public QMainWindow
{
public:
    BareWindow()
    {
        m_form.setupUi(this);
        fillTree();
        addLabels(new QVBoxLayout(m_form.statusBox), statusLabels, QStringLiteral("Status"));
        m_form.upsModel->setPixmap(QPixmap(QStringLiteral(":/devices/images/devices/tarvex33.png")));
        m_form.busyLabel->hide();
        m_form.horizontalLayout_2->addStretch();
        addLabels(m_form.horizontalLayout_2, warningLabels, QString());
        setFixedSize(size());
        showValues();
    }

    void showValues()
    {
        ++m_step;
        const QString text = QString::number(m_step) + QLatin1String(" W");
        for (QLineEdit* edit : {m_form.modelNameEdit, m_form.nameAndLocalizationEdit})
            edit->setText(text);
        for (LineEditWidget* field :
             {m_form.firmwareEdit, m_form.nominalActivePowerEdit, m_form.nominalSpuriousPowerEdit,
              m_form.workModeEdit, m_form.autonomyTimeEdit, m_form.temperatureEdit})
            field->lineEdit->setText(text);
        for (ProgressBarWidget* field : {m_form.loadProgressBar, m_form.loadProgressBar_2,
                                         m_form.loadProgressBar_3, m_form.batteryStateProgressBar})
            field->progressBar->setValue(m_step % 100);
        m_form.deviceMessages->setPlainText(text);
    }

private:
    // As many as the panel's status strip and its warning have.
    static constexpr int statusLabels = 8;
    static constexpr int warningLabels = 2;

    void fillTree()
    {
        auto* tree = new QTreeWidget(m_form.upsTreeGroupBox);
        tree->setHeaderHidden(true);
        tree->setGeometry(5, 21, 179, 520);
        auto* row = new QTreeWidgetItem(tree, {QStringLiteral("UPS")});
        row->setIcon(0, QIcon(QStringLiteral(":/indicators/images/indicators/green.png")));
    }

    Ui::VelmoraWindow m_form;
    int m_step = 0;
};

} // namespace

int main(int argc, char** argv)
{
    Q_INIT_RESOURCE(velmora);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication application(argc, argv);
    QFont font = QApplication::font();
    font.setFamily(QStringLiteral("DejaVu Serif"));
    QApplication::setFont(font);

    QSplashScreen splash(QPixmap(QStringLiteral(":/images/images/splashscreen.png")));
    splash.show();
    QCoreApplication::processEvents();
    QFile sheet(QStringLiteral(":/styles/global.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));

    BareWindow window;
    QTimer changeTimer;
    QObject::connect(&changeTimer, &QTimer::timeout, &window, &BareWindow::showValues);
    if (QCoreApplication::arguments().contains(QLatin1String("--changing")))
        changeTimer.start(changeInterval);
    window.show();
    splash.finish(&window);
    return QApplication::exec();
}
