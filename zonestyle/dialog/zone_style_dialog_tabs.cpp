// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/map_selection_by_pattern.h"
#include "zonestyle/controls/map_selection_by_pattern_properties_manager.h"
#include "zonestyle/dialog/focus_keeper.h"
#include "zonestyle/dialog/zone_style_dialog.h"
#include "zonestyle/dialog/zone_style_form.h"
#include "zonestyle/views/style_table_view.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common/common.h>
#include <sdk/dialogs_common/tab_widget_launch_help_action.h>

#include <QDialogButtonBox>
#include <QLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>

#include <algorithm>
#include <array>
#include <utility>

namespace corvala::sdk::ui::dialogs {

std::set<ZoneStyleDialog::MappingStyleTab_e> ZoneStyleDialog::m_availableMappingTabs =
    ZoneStyleDialog::defaultAvailableMappingTabs();

/// The tab shown last under a plot type; outlives the dialog.
static int& lastTab(PlotType_e plotType)
{
    static std::array<int, 6> tabs {};
    return tabs.at(static_cast<std::size_t>(plotType));
}

static PlotType_e activePlotType()
{
    return static_cast<PlotType_e>(CvlUtilFrameGetPlotType());
}

using LineTabs = std::vector<ZoneStyleDialog::MappingStyleTab_e>;

/// In the order of the form.
static LineTabs shownTabs(PlotType_e plotType,
                          const std::set<ZoneStyleDialog::MappingStyleTab_e>& available)
{
    LineTabs shown;
    for (const auto tab : available) {
        const bool isOfXY = tab == ZoneStyleDialog::MappingStyleTab_ErrorBars
            || tab == ZoneStyleDialog::MappingStyleTab_BarCharts;
        if (plotType == PlotType_LineXY || !isOfXY)
            shown.push_back(tab);
    }
    return shown;
}

/// Where the tab of an index is among other tabs; the first when it is not there.
static int movedTab(int index, const LineTabs& before, const LineTabs& after)
{
    if (index < 0 || index >= static_cast<int>(before.size()))
        return index;
    const auto found =
        std::find(after.begin(), after.end(), before[static_cast<std::size_t>(index)]);
    return found == after.end() ? 0 : static_cast<int>(found - after.begin());
}

std::set<ZoneStyleDialog::MappingStyleTab_e> ZoneStyleDialog::defaultAvailableMappingTabs()
{
    return {MappingStyleTab_Definitions, MappingStyleTab_Lines,     MappingStyleTab_Curves,
            MappingStyleTab_Symbols,     MappingStyleTab_ErrorBars, MappingStyleTab_BarCharts};
}

void ZoneStyleDialog::setAvailableMappingStyleTabs(std::set<MappingStyleTab_e> const& tabs)
{
    if (&tabs == &m_availableMappingTabs)
        return;
    for (const PlotType_e plotType : {PlotType_LineXY, PlotType_LinePolar})
        lastTab(plotType) = movedTab(lastTab(plotType), shownTabs(plotType, m_availableMappingTabs),
                                     shownTabs(plotType, tabs));
    m_availableMappingTabs = tabs;
    if (m_dialogInstance)
        m_dialogInstance->adoptAvailableMappingTabs();
}

/// A closed dialog reads nothing of the document: it catches up when it is shown.
void ZoneStyleDialog::adoptAvailableMappingTabs()
{
    applyAvailableMappingTabs();
    if (!isVisible()) {
        m_changeMissed = true;
        m_plotTypeChangeMissed = true;
        return;
    }
    updateTabs(activePlotType()); // a polar plot has no error bars and bar charts
    saveLastTab(); // its index may be another one
}

void ZoneStyleDialog::updateZoneStyleDialog()
{
    const zonestyle::intern::FocusKeeper focus(*this, *m_tableView);
    const PlotType_e plotType = activePlotType();
    m_mapSelection->propertiesManager().labelText().set(tr("S&election criteria:").toStdString());
    if (plotType == PlotType_Field3D || plotType == PlotType_Field2D)
        showFieldPage();
    else
        showLinePage();
    updateTabs(plotType);
    selectWantedTab();
    setupTableView();
}

void ZoneStyleDialog::showFieldPage()
{
    m_form->plotTypeStackedWidget->setCurrentWidget(m_form->fieldMapPage);
    setWindowTitle(tr("Zone Style"));
    showOptionalButtonBoxButtons(false);
    m_mapSelection->applyButton().setText(tr("&Zones"));
    m_mapSelection->groupsButton().show();
    m_helpAction->setTabWidget(m_form->fieldTabs);
    confirmScatterVarAssignment();
}

void ZoneStyleDialog::showLinePage()
{
    m_form->plotTypeStackedWidget->setCurrentWidget(m_form->lineMapPage);
    setWindowTitle(tr("Mapping Style"));
    showOptionalButtonBoxButtons(true);
    m_mapSelection->applyButton().setText(tr("&Select"));
    m_mapSelection->groupsButton().hide();
    m_helpAction->setTabWidget(m_form->lineTabs);
}

/// The box unparents the buttons that it removes; they go back to where they came from. It would
/// also go on handing the focus that Tab brings to the first of them.
void ZoneStyleDialog::showOptionalButtonBoxButtons(bool show)
{
    for (QPushButton* button : m_form->mapToolButtons) {
        const bool isShown = m_form->buttonBox->buttonRole(button) != QDialogButtonBox::InvalidRole;
        if (isShown == show)
            continue;
        if (show) {
            m_form->buttonBox->addButton(button, QDialogButtonBox::ActionRole);
        } else {
            m_form->buttonBox->removeButton(button);
            m_form->additionalButtonsPage->layout()->addWidget(button);
        }
    }
    if (!show)
        m_form->buttonBox->setFocusProxy(m_form->buttonBox->button(QDialogButtonBox::Close));
}

QTabWidget* ZoneStyleDialog::getCurrentTabWidget()
{
    switch (activePlotType()) {
    case PlotType_Field3D:
    case PlotType_Field2D: return m_form->fieldTabs;
    case PlotType_LineXY:
    case PlotType_LinePolar: return m_form->lineTabs;
    default: return nullptr;
    }
}

/// Place of a page among all pages of its tab widget, shown or not.
int ZoneStyleDialog::formPosition(const QWidget& page) const
{
    for (const std::vector<QWidget*>* pages : {&m_form->fieldPages, &m_form->linePages}) {
        const auto found = std::find(pages->begin(), pages->end(), &page);
        if (found != pages->end())
            return static_cast<int>(found - pages->begin());
    }
    return -1;
}

/// A page comes back in front of the first one that follows it in the form: the place that it had
/// among other pages that were hidden, too, says nothing.
void ZoneStyleDialog::showTab(QTabWidget& tabWidget, QWidget& page, bool show)
{
    const int current = tabWidget.indexOf(&page);
    if (show == (current >= 0))
        return;
    if (!show) {
        m_removedTabTexts[&page] = tabWidget.tabText(current);
        tabWidget.removeTab(current);
        return;
    }
    int index = 0;
    while (index < tabWidget.count() && formPosition(*tabWidget.widget(index)) < formPosition(page))
        ++index;
    tabWidget.insertTab(index, &page, m_removedTabTexts[&page]);
}

void ZoneStyleDialog::applyAvailableMappingTabs()
{
    for (int tab = MappingStyleTab_Definitions; tab <= MappingStyleTab_Indices; ++tab) {
        const bool isAvailable =
            m_availableMappingTabs.count(static_cast<MappingStyleTab_e>(tab)) != 0;
        showTab(*m_form->lineTabs, *m_form->linePages[static_cast<std::size_t>(tab)], isAvailable);
    }
}

void ZoneStyleDialog::updateTabs(PlotType_e plotType)
{
    static constexpr std::size_t kVolume = 8;
    if (plotType == PlotType_Field3D || plotType == PlotType_Field2D)
        showTab(*m_form->fieldTabs, *m_form->fieldPages[kVolume], plotType == PlotType_Field3D);
    if (plotType != PlotType_LineXY && plotType != PlotType_LinePolar)
        return;
    const LineTabs shown = shownTabs(plotType, m_availableMappingTabs);
    for (const MappingStyleTab_e tab : {MappingStyleTab_BarCharts, MappingStyleTab_ErrorBars})
        showTab(*m_form->lineTabs, *m_form->linePages[tab],
                std::find(shown.begin(), shown.end(), tab) != shown.end());
}

void ZoneStyleDialog::restoreLastTab()
{
    QTabWidget* tabWidget = getCurrentTabWidget();
    if (!tabWidget)
        return;
    m_wantedTab = {activePlotType(), lastTab(activePlotType())};
    tabWidget->setCurrentIndex(m_wantedTab->index);
}

/// The tab to restore may have been hidden, or have had another index, when it was asked for.
void ZoneStyleDialog::selectWantedTab()
{
    QTabWidget* tabWidget = getCurrentTabWidget();
    const std::optional<WantedTab> wanted = std::exchange(m_wantedTab, std::nullopt);
    if (tabWidget && wanted && wanted->plotType == activePlotType())
        tabWidget->setCurrentIndex(wanted->index);
}

void ZoneStyleDialog::saveLastTab()
{
    const QTabWidget* tabWidget = getCurrentTabWidget();
    if (tabWidget && tabWidget->currentIndex() >= 0)
        lastTab(activePlotType()) = tabWidget->currentIndex();
}

bool ZoneStyleDialog::isScatterTabCurrent() const
{
    static constexpr std::size_t kScatter = 3;
    return m_form->fieldTabs->currentWidget() == m_form->fieldPages[kScatter];
}

/// The scatter table needs a variable to show.
void ZoneStyleDialog::confirmScatterVarAssignment()
{
    if (!isScatterTabCurrent())
        return;
    const AppLock lock(ImplicitMacroRecording_None);
    autoAssignScatterVariable();
}

// The tabs of a closed dialog change when it adopts the document, which shows the table itself.

void ZoneStyleDialog::on_plotAttr_FD_PageGroup_currentChanged(int)
{
    if (!isVisible())
        return;
    confirmScatterVarAssignment();
    setupTableView();
}

void ZoneStyleDialog::on_plotAttr_LP_PageGroup_currentChanged(int)
{
    if (!isVisible())
        return;
    setupTableView();
}

} // namespace corvala::sdk::ui::dialogs
