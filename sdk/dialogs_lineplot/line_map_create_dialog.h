// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>
#include <sdk/dialogs_common/document_dialog.h>

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

/// Creates line maps of a zone in the active frame, one per chosen dependent variable.
class LineMapCreateDialog : public common::DocumentDialog
{
    Q_OBJECT

public:
    /// The shared instance, on that parent (null: the main window). Made again when its parent
    /// died or is another one.
    static LineMapCreateDialog& getInstance(QWidget* parent);

private:
    explicit LineMapCreateDialog(QWidget* parent);
    void readDocument() override;
    bool isConcernedBy(const toolbox::StateChangeEventInterface& change) const override;
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
};

} // namespace corvala::dialogs::lineplot
