// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"
#include "link/PolicyRecords.h"
#include "policy/core/ConditionRules.h"
#include "policy/core/EventDefinitions.h"

#include <QDialog>
#include <QStringList>
#include <QVector>

#include <memory>

class QListWidget;
class QListWidgetItem;
class QTextEdit;

namespace Ui {
class AdvancedOptionsWindow;
}

/// Names an event of a device with advanced options and writes the conditions under which it begins and ends.
/// It changes nothing itself: whoever opened it stores what getExpressions() gives once it is accepted.
class AdvancedOptionsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AdvancedOptionsWindow)

public:
    /// `event` is empty, a name alone, or a name with its start and end condition in postfix form.
    /// `knownEvents` outlives the dialog and is read for names that are taken. A device whose definitions
    /// cannot be read is told to the user at once, in a box that this constructor waits for.
    AdvancedOptionsWindow(const Velmora::Utils::Ups& device, const QStringList& event,
                          QVector<Event>* knownEvents, QWidget* parent);
    ~AdvancedOptionsWindow() override;

    /// True leaves only saving of the event as it is, false only saving as a new one.
    void setEditMode(bool edit);
    /// Name, start condition and end condition, both in postfix form, once the dialog is accepted.
    [[nodiscard]] QStringList getExpressions() const;

    void prepareEventStateList();
    /// Infix form of a stored condition; a text that cannot be mapped comes back as it is.
    [[nodiscard]] QString prepareExpressions(const QString& postfix) const;
    /// Name and conditions as they are stored; empty if one of the conditions does not parse.
    [[nodiscard]] QStringList buildAstTreeAndParseExpressions() const;

public slots:
    void expressionChanged();
    void listItemDoubleClicked(QListWidgetItem* item);
    void filterInTextChanged(const QString& pattern);
    void filterOutTextChanged(const QString& pattern);
    void accept() override;

private:
    void wire();
    void tellFailure();
    void prefill();
    /// Colours a condition and says in words what is wrong with it: colour alone does not reach everybody.
    void showValidity(QTextEdit* edit);
    [[nodiscard]] static QString validityText(Velmora::ConditionFault fault);
    void filter(QListWidget* list, const QString& pattern);
    /// True if nothing stands in the way of saving; otherwise says what does.
    [[nodiscard]] bool reportEntry() const;
    [[nodiscard]] bool isNameTaken(const QString& name) const;

    std::unique_ptr<Ui::AdvancedOptionsWindow> ui;
    QStringList expressions;
    QString originalName; ///< the name with which the dialog opened
    Velmora::EventDefinitions m_definitions;
    QStringList valueList;
    QStringList operatorList;
    QVector<Event>* allEvents;
};
