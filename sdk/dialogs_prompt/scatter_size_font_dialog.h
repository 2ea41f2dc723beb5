// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/signals/signal_connection_collection.h>
#include <sdk/toolbox/set.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QDialog>

namespace corvala::dialogs::common {
class NumberedNameListModel;
}
namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::dialogs::prompt {

class FontChoice;

/// Chooses the variable that sizes the scatter symbols of the active frame, and the font of the
/// character symbols of its active field maps. Modeless; it follows the document while it is open.
class ScatterSizeFontDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static ScatterSizeFontDialog& getInstance(QWidget* parent);

    void launch(); ///< shows it, or brings it to the front

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    explicit ScatterSizeFontDialog(QWidget* parent);
    void readDocument();
    void writeVariable();
    void writeFont(const char* name, int value);

    common::NumberedNameListModel* m_variables;
    ui::ComboBoxAutoFilter* m_variable;
    FontChoice* m_font;
    toolbox::Set m_activeMaps; ///< as they were read last
    sdk::ui::OnIdleActionPerformerSingleShot m_refresh;
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::dialogs::prompt
