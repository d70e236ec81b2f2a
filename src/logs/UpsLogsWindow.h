// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>

class LogTableModel;
class QStandardItemModel;

namespace Ui {
class UpsLogsWindow;
}

namespace Velmora {
struct ParametersHeader;
class TableFit;
class UpsSocketController;
} // namespace Velmora

/// Pages through one log of the device that the service has chosen for this connection. The service keeps the
/// place in the log: the window shows whatever page comes.
class UpsLogsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpsLogsWindow)

public:
    explicit UpsLogsWindow(QWidget* parent);
    ~UpsLogsWindow() override;

    /// `controller` outlives the window.
    void setSocketController(Velmora::UpsSocketController* controller);
    /// "parameters", "messages" or "compensation".
    void setLogType(const QString& type);
    /// Caption of the column of this name, see logColumnCaption.
    [[nodiscard]] static QString getColumnHeader(const QString& key);

public slots:
    /// Shows a page, one string a line; an empty one blanks the table.
    void setLogs(const QStringList& lines);
    void nextLogButtonClickHandler();
    void prevLogButtonClickHandler();
    /// Gives up the place in the log that the service keeps.
    void reject() override;

private:
    void clearTableModel();
    void requestPage(const QString& age);
    void showMessages(const QStringList& lines);
    void showCompensation(const QStringList& lines);
    void showParameters(const QStringList& lines);
    void showPlainModel(const QStringList& captions, const Velmora::TableFit& fit);
    [[nodiscard]] std::unique_ptr<QStandardItemModel> headerTree(const Velmora::ParametersHeader& header,
                                                                 const QWidget& view) const;

    std::unique_ptr<Ui::UpsLogsWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
    QString logType;

    // The page that is shown: one of the two, or none of them. Both are gone before the view, which copes.
    std::unique_ptr<QStandardItemModel> m_plainModel;
    std::unique_ptr<LogTableModel> m_tableModel;
};
