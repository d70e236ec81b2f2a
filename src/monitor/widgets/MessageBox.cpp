// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/MessageBox.h"

#include <QIcon>
#include <QMessageBox>

namespace Velmora::Utils {

void displayMsgBox(const QString& title, const QString& text)
{
    auto* box = new QMessageBox;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowIcon(QIcon(QStringLiteral(":/images/images/appicon_32.png")));
    box->setWindowTitle(title);
    // Names and answers of the service may look like markup.
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    box->open();
}

} // namespace Velmora::Utils
