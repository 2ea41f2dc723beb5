// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAction;
class QComboBox;

namespace corvala::app {

/// The plot type of the active frame.
class PlotTypeChoice : public QWidget
{
    Q_OBJECT

public:
    explicit PlotTypeChoice(QWidget* parent = nullptr);

    /// Shows what the document says.
    void refresh();

    const QList<QAction*>& commands() const { return m_commands; } ///< one for each type

private:
    void choose(int position);

    QComboBox* m_types; // not owned
    QList<QAction*> m_commands;
};

} // namespace corvala::app
