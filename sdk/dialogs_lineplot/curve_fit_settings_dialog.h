// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>
#include <sdk/propertybindings/curve_fit_info.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/toolbox/set.h>
#include <sdk/toolbox/state_change_event.h>

#include <QDialog>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace corvala::dialogs::lineplot {

class CurveFitSettingsForm;

/// Edits the settings of the curve fit that some line maps have in common. Modeless; it closes
/// when another frame becomes active or the line maps are no longer what they were.
class CurveFitSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static CurveFitSettingsDialog& getInstance(QWidget* parent);

    /// Shows the settings of the first line map; OK and Apply give them to all, as one undo step.
    /// Does nothing when the frame is not active, a line map does not exist, the line maps have
    /// different fits, or their fit has no settings. Below stands what came of the fit, for the
    /// first line map, where the program reports that.
    void launch(CvlUniqueId frame, toolbox::Set lineMaps);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    explicit CurveFitSettingsDialog(QWidget* parent);
    bool isUpToDate() const;
    void readSettings();
    void showReport();
    void apply();
    void stateChanged(const toolbox::StateChangeEventInterface& event);

    QLabel* m_lineMapsLabel;
    CurveFitSettingsForm* m_form;
    QPlainTextEdit* m_report;
    QTimer* m_askAgain; ///< while the fit is being made
    QPushButton* m_okButton;
    QPushButton* m_applyButton;
    CvlUniqueId m_frame = 0;
    toolbox::Set m_lineMaps;
    propertybindings::CurveFitInfo m_fit;
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::dialogs::lineplot
