// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"

#include <QStringList>
#include <QToolBar>

class QAction;
class QMenu;
class QToolButton;

namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::app {

class BarSwitch;

/// The variable and the colours of the first contour group; hidden for line plots.
class ContourBar : public QToolBar
{
    Q_OBJECT

public:
    explicit ContourBar(QWidget* parent = nullptr);
    ~ContourBar() override;

    /// Shows what the document says.
    void refresh();

    /// Opens the list of variables, wherever there is room for it.
    void chooseVariable();

    /// Lets no text stay in the field that was typed but not chosen.
    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Range and levels are to be set on the page of this name.
    void detailsWanted(const QString& page);

private:
    void makeColorMenu();
    void paintName();
    void write(style::Key value, const host::StyleInput& to);
    void showVariables(const host::Frame& frame);
    void showDrawn();
    void showColors(const host::Frame& frame);

    // Not owned.
    BarSwitch* m_switch = nullptr;
    ui::ComboBoxAutoFilter* m_variable;
    QToolButton* m_colors;
    QAction* m_reversed = nullptr;
    QList<QAction*> m_colorMaps;
    QStringList m_names; ///< of the variables in the list
};

} // namespace corvala::app
