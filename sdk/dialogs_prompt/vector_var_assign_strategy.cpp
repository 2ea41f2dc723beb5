// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/vector_var_assign_strategy.h"

#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/common_ui/find_main_window.h>
#include <sdk/private/numbered_name_list_model.h>
#include <sdk/toolbox/style_value.h>
#include <sdk/uicommon/edit_session.h>
#include <sdk/uicommon/style_writing.h>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPointer>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace corvala::dialogs::prompt {

static constexpr style::VariableKey kComponents[] = {
    style::globalVector.uVar, style::globalVector.vVar, style::globalVector.wVar};

/// Number of components that the vectors of a plot have.
static int componentCount(PlotType_e plotType)
{
    return plotType == PlotType_Field3D ? 3 : plotType == PlotType_Field2D ? 2 : 0;
}

static CvlInt64 assignedVariable(int component)
{
    const toolbox::StyleValue value(kComponents[component]);
    return value.read<CvlInt64>().value_or(0);
}

namespace {

/// Asks for one variable per component.
class VectorVariablesDialog : public QDialog
{
    Q_DECLARE_TR_FUNCTIONS(VectorVariablesDialog)

public:
    VectorVariablesDialog(QWidget* parent, int components);

    void write() const; ///< one undo step

private:
    void updateOkButton();

    common::NumberedNameListModel* m_variables;
    std::vector<ui::ComboBoxAutoFilter*> m_boxes;
    QPushButton* m_okButton;
};

VectorVariablesDialog::VectorVariablesDialog(QWidget* parent, int components)
    : QDialog(parent)
    , m_variables(new common::NumberedNameListModel(this))
{
    const QString labels[] = {tr("&U:"), tr("&V:"), tr("&W:")};
    setWindowTitle(tr("Select Vector Variables"));
    m_variables->listVariables();
    auto* form = new QFormLayout(this);
    for (int component = 0; component < components; ++component) {
        auto* box = new ui::ComboBoxAutoFilter(this);
        box->setListModel(m_variables);
        box->setCurrentIndex(m_variables->rowOf(assignedVariable(component)));
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &VectorVariablesDialog::updateOkButton);
        form->addRow(labels[component], box);
        m_boxes.push_back(box);
    }
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    form->addRow(buttons);
    m_okButton = buttons->button(QDialogButtonBox::Ok);
    m_okButton->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateOkButton();
}

void VectorVariablesDialog::updateOkButton()
{
    m_okButton->setEnabled(std::all_of(m_boxes.begin(), m_boxes.end(), [](const QComboBox* box) {
        return box->currentIndex() >= 0;
    }));
}

void VectorVariablesDialog::write() const
{
    const sdk::ui::StyleUndoStep step;
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        const CvlInt64 variable = m_variables->numberAt(m_boxes[i]->currentIndex());
        sdk::ui::writeStyle(kComponents[i], nullptr, static_cast<double>(variable));
    }
}

} // namespace

bool VectorVarAssignStrategy::operator()(PlotType_e plotType) const
{
    const int components = componentCount(plotType);
    if (components == 0 || !CvlUtilDataSetIsAvailable())
        return false;
    bool isAssigned = false; // one component makes vectors
    for (int component = 0; component < components; ++component)
        isAssigned = isAssigned || assignedVariable(component) != 0;
    if (isAssigned)
        return true;

    QWidget* window = QApplication::activeWindow();
    const QPointer<VectorVariablesDialog> dialog(
        new VectorVariablesDialog(window ? window : &ui::findMainWindow(), components));
    const bool isAccepted = sdk::ui::execInEditSession(*dialog) == QDialog::Accepted;
    if (isAccepted)
        dialog->write();
    delete dialog;
    return isAccepted;
}

} // namespace corvala::dialogs::prompt
