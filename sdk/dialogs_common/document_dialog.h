// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/signals/signal_connection_collection.h>
#include <sdk/toolbox/state_change_event.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QDialog>

namespace corvala::dialogs::common {

/// A modeless dialog that follows the document while it is open: it reads it when it is launched,
/// and again in an idle moment after changes that concern it. Hidden, it costs nothing.
class DocumentDialog : public QDialog
{
    Q_OBJECT

public:
    void launch(); ///< shows it, or brings it to the front

protected:
    explicit DocumentDialog(QWidget* parent);

    /// Shows the document's state and keeps what the user has chosen, as far as it is still there.
    virtual void readDocument() = 0;
    virtual bool isConcernedBy(const toolbox::StateChangeEventInterface& change) const = 0;

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    sdk::ui::OnIdleActionPerformerSingleShot m_refresh;
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::dialogs::common
