// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/style/number_set.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

class QItemSelectionModel;
class QTableView;
class QWidget;

namespace corvala::app {

/// The rows that are selected in the style dialog while it is open: a row is a map of the kind that
/// the active frame shows.
class DialogRows : public QObject
{
    Q_OBJECT

public:
    /// The window that the dialog is made on.
    explicit DialogRows(QWidget& mainWindow);

    /// Empty while the dialog is not open.
    host::NumberSet selectedMaps() const;

Q_SIGNALS:
    /// Others may be selected, once for all changes of a moment.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchDialog();
    void watchSelection();

    QTimer m_pause;
    QPointer<QWidget> m_dialog; ///< null before it is made
    QPointer<QTableView> m_table;
    QPointer<QItemSelectionModel> m_selection; ///< of the table, which has another one for each tab
};

} // namespace corvala::app
