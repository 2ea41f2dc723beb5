// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

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

    QComboBox& field() const;

private:
    QComboBox* m_types; // not owned
};

} // namespace corvala::app
