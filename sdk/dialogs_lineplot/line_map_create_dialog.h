// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>
#include <sdk/signals/signal_connection_collection.h>
#include <sdk/uicommon/on_idle_action_performer_single_shot.h>

#include <QDialog>

#include <vector>

class QLabel;
class QListView;
class QPushButton;

namespace corvala::dialogs::common {
class NumberedNameListModel;
}
namespace corvala::ui {
class ComboBoxAutoFilter;
}

namespace corvala::dialogs::lineplot {

/// Creates line maps of a zone in the active frame, one per chosen dependent variable. Modeless;
/// it follows the document while it is open.
class LineMapCreateDialog : public QDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static LineMapCreateDialog& getInstance(QWidget* parent);

    void launch(); ///< shows it, or brings it to the front

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    explicit LineMapCreateDialog(QWidget* parent);
    void readDocument();
    std::vector<CvlInt64> chosenDependentVariables() const; ///< ascending
    void createLineMaps();
    void updateCreateButton();

    common::NumberedNameListModel* m_zones;
    common::NumberedNameListModel* m_variables;
    ui::ComboBoxAutoFilter* m_zone;
    QLabel* m_independentLabel;
    ui::ComboBoxAutoFilter* m_independent;
    QLabel* m_dependentLabel;
    QListView* m_dependent;
    QPushButton* m_createButton;
    sdk::ui::OnIdleActionPerformerSingleShot m_refresh;
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::dialogs::lineplot
