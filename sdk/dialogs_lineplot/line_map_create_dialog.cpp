// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_lineplot/line_map_create_dialog.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/private/numbered_name_list_model.h>
#include <sdk/private/shared_instance.h>
#include <sdk/uicommon/host_command_scope.h>
#include <sdk/uicommon/style_writing.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QListView>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace corvala::dialogs::lineplot {

static bool isPolar()
{
    return CvlUtilFrameGetPlotType() == PlotType_LinePolar;
}

LineMapCreateDialog& LineMapCreateDialog::getInstance(QWidget* parent)
{
    static QPointer<LineMapCreateDialog> instance;
    return common::sharedInstance(instance, parent,
                                  [](QWidget* owner) { return new LineMapCreateDialog(owner); });
}

LineMapCreateDialog::LineMapCreateDialog(QWidget* parent)
    : DocumentDialog(parent)
    , m_zones(new common::NumberedNameListModel(this))
    , m_variables(new common::NumberedNameListModel(this))
    , m_zone(new ui::ComboBoxAutoFilter(this))
    , m_independentLabel(new QLabel(this))
    , m_independent(new ui::ComboBoxAutoFilter(this))
    , m_dependentLabel(new QLabel(this))
    , m_dependent(new QListView(this))
{
    setWindowTitle(tr("Create Line Maps"));
    m_zone->setListModel(m_zones);
    m_independent->setListModel(m_variables);
    m_independentLabel->setBuddy(m_independent);
    m_dependent->setModel(m_variables);
    m_dependent->setUniformItemSizes(true);
    m_dependent->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_dependent->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_dependentLabel->setBuddy(m_dependent);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    m_createButton = buttons->addButton(tr("C&reate"), QDialogButtonBox::ApplyRole);
    m_createButton->setDefault(true);

    auto* form = new QFormLayout(this);
    form->addRow(tr("&Zone:"), m_zone);
    form->addRow(m_independentLabel, m_independent);
    form->addRow(m_dependentLabel, m_dependent);
    form->addRow(buttons);

    connect(m_createButton, &QPushButton::clicked, this, &LineMapCreateDialog::createLineMaps);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    for (QComboBox* box : {m_zone, m_independent})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &LineMapCreateDialog::updateCreateButton);
    connect(m_dependent->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &LineMapCreateDialog::updateCreateButton);
}

/// Edits of style leave the lists as they are; a change of plot type does not.
bool LineMapCreateDialog::isConcernedBy(const toolbox::StateChangeEventInterface& event) const
{
    return event.stateChange() == StateCode_Style ? event.styleParam(1) == "PlotType"
                                                  : event.stateChange() < StateCode_View;
}

void LineMapCreateDialog::readDocument()
{
    const CvlInt64 zone = m_zones->numberAt(m_zone->currentIndex());
    const CvlInt64 independent = m_variables->numberAt(m_independent->currentIndex());
    const std::vector<CvlInt64> dependent = chosenDependentVariables();

    m_zones->listZones();
    m_variables->listVariables();
    const auto rowOrFirst = [](const common::NumberedNameListModel& model, CvlInt64 number) {
        return model.rowCount() == 0 ? -1 : std::max(0, model.rowOf(number));
    };
    m_zone->setCurrentIndex(rowOrFirst(*m_zones, zone));
    m_independent->setCurrentIndex(rowOrFirst(*m_variables, independent));
    for (const CvlInt64 variable : dependent)
        m_dependent->selectionModel()->select(m_variables->index(m_variables->rowOf(variable), 0),
                                              QItemSelectionModel::Select);
    m_independentLabel->setText(isPolar() ? tr("&Theta variable:") : tr("&X-axis variable:"));
    m_dependentLabel->setText(isPolar() ? tr("R&adius variables:") : tr("&Y-axis variables:"));
    updateCreateButton();
}

std::vector<CvlInt64> LineMapCreateDialog::chosenDependentVariables() const
{
    std::vector<CvlInt64> variables;
    for (const QModelIndex& index : m_dependent->selectionModel()->selectedIndexes())
        variables.push_back(m_variables->numberAt(index.row()));
    std::sort(variables.begin(), variables.end());
    return variables;
}

void LineMapCreateDialog::createLineMaps()
{
    const std::vector<CvlInt64> dependent = chosenDependentVariables();
    const CvlInt64 zone = m_zones->numberAt(m_zone->currentIndex());
    const CvlInt64 independent = m_variables->numberAt(m_independent->currentIndex());
    if (dependent.empty() || zone == 0 || independent == 0)
        return;
    const sdk::ui::HostCommandScope command;
    const sdk::AppLock lock;
    const sdk::ui::StyleUndoStep step;
    const auto count = static_cast<CvlInt64>(dependent.size());
    const CvlInt64 first = CvlUtilLineMapCreate(count);
    if (first == 0)
        return;
    const auto assign = [](style::Key key, CvlInt64 firstMap, CvlInt64 lastMap, CvlInt64 value) {
        toolbox::Set maps;
        maps.addRange(firstMap, lastMap);
        sdk::ui::writeStyle(key, &maps, static_cast<double>(value));
    };
    const auto& keys = style::lineMap.assign;
    assign(keys.zone, first, first + count - 1, zone);
    assign(isPolar() ? keys.thetaAxisVar : keys.xAxisVar, first, first + count - 1, independent);
    for (CvlInt64 i = 0; i < count; ++i)
        assign(isPolar() ? keys.rAxisVar : keys.yAxisVar, first + i, first + i,
               dependent[static_cast<std::size_t>(i)]);
}

void LineMapCreateDialog::updateCreateButton()
{
    m_createButton->setEnabled(m_zone->currentIndex() >= 0 && m_independent->currentIndex() >= 0
                               && m_dependent->selectionModel()->hasSelection());
}

} // namespace corvala::dialogs::lineplot
