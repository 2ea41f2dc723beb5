// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "play/script.h"

#include <QAbstractItemModel>
#include <QList>
#include <QRect>

#include <cstdint>

class QAbstractButton;
class QAction;
class QItemSelectionModel;
class QTableView;
class QTabWidget;

namespace corvala::dialogs::common {
class QtDialogAbstract;
}

namespace corvala::play {

/// The widgets of the style dialog as a person finds them on the screen. Every operation throws a
/// ScriptError when the dialog is not open or has no such thing.
class DialogDriver
{
public:
    /// The dialog, open or not; null before it was made.
    static corvala::dialogs::common::QtDialogAbstract* instance();
    corvala::dialogs::common::QtDialogAbstract& dialog() const;

    QTableView& table() const;
    QAbstractItemModel& model() const;
    QTabWidget& tabs() const;
    QString page() const; ///< object name of the page for the kind of plot
    QStringList tabTexts() const;
    QAbstractButton& button(const QString& text) const; ///< by text without mnemonic
    QStringList buttonBoxTexts() const; ///< without mnemonics
    QString helpReference() const;
    QString countsText() const; ///< beside the pattern

    /// A column by its header text or its number from 0.
    int column(const nlohmann::json& name) const;
    QModelIndex cell(std::int64_t map, int column) const;
    QModelIndexList cells(const host::NumberSet& maps, int column) const;
    bool isRelevant(const QModelIndex& cell) const;
    int editorType(int column) const;
    int editorOption(int column) const;
    /// The actions of the column for the selection; they belong to the caller.
    QList<QAction*> actions(QItemSelectionModel& selection, int column) const;
    bool setData(const QModelIndexList& cells, const QVariant& value, int role) const;

    /// Scrolls the cell into view; its rectangle in the viewport.
    QRect show(const QModelIndex& cell) const;
    int firstVisibleMap() const; ///< 0 without rows
    int refreshCount() const; ///< completed refreshes since the dialog was made; 0 before
};

} // namespace corvala::play
