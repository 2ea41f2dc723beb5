// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/dialog/export.h"

#include <sdk/base/enums.h>
#include <sdk/dialogs_common/dialog_initialization.h>
#include <sdk/dialogs_common/qt_dialog_abstract.h>

#include <QModelIndexList>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class QItemSelectionModel;
class QTabWidget;

namespace corvala::dialogs::common {
class TabWidgetLaunchHelpAction;
}
namespace corvala::signaling {
class SignalConnectionCollection;
}
namespace corvala::toolbox {
class Set;
class StateChangeEventInterface;
}
namespace corvala::sdk::ui {
class OnIdleActionPerformerSingleShot;
}
namespace corvala::sdk::ui::dialogs::uicontrols {
struct RowRange;
class MapSelectionByPattern;
class TableColumnHeader;
}
namespace corvala::sdk::ui::dialogs::zonestyle::intern {
class ZoneStyleForm;
namespace models {
class ModelAbstract;
class ModelForPageMap;
}
namespace views {
class StyleTableView;
}
}

namespace corvala::sdk::ui::dialogs {

enum SelectOption_s : int;

/// The dialog with the style of every map of the active frame: one table per style category, on
/// the field page ("Zone Style") for field maps and on the line page ("Mapping Style") for line
/// maps. There is one at a time; closing it only hides it.
///
/// The dialog follows the document while it is open. While it is not, it reads nothing, and catches
/// up when it is shown. The property "refreshCount" counts the refreshes that it has completed.
class ZoneStyleDialog : public corvala::dialogs::common::QtDialogAbstract
{
    Q_OBJECT
    Q_PROPERTY(int refreshCount READ refreshCount)

public:
    using DialogInitialization_e = corvala::dialogs::common::DialogInitialization_e;

    /// The tabs of the line page.
    enum MappingStyleTab_e {
        MappingStyleTab_Definitions = 0,
        MappingStyleTab_Lines = 1,
        MappingStyleTab_Curves = 2,
        MappingStyleTab_Symbols = 3,
        MappingStyleTab_ErrorBars = 4,
        MappingStyleTab_BarCharts = 5,
        MappingStyleTab_Indices = 6
    };

    /// The one dialog; made on the parent, which owns it, if there is none. It is not shown: that
    /// is launch(). With DialogInitialization_SelectPickedObjects the rows of the objects that are
    /// picked in the host are selected at the next idle moment.
    ZONESTYLE_EXPORT static ZoneStyleDialog& getInstance(QWidget& parent,
                                                         DialogInitialization_e initialization);

    /// Relevant while the active frame shows a field plot or a line plot.
    ZONESTYLE_EXPORT static boost::shared_ptr<property::RelevanceInterface const> relevance();

    /// Restricts the line page to these tabs, now and for dialogs made later. Tabs that the plot
    /// type does not have stay away.
    ZONESTYLE_EXPORT static void
    setAvailableMappingStyleTabs(std::set<MappingStyleTab_e> const& tabs);

    /// All but "Indices".
    static std::set<MappingStyleTab_e> defaultAvailableMappingTabs();

    ZONESTYLE_EXPORT static ZoneStyleDialog* m_dialogInstance; ///< null while there is none
    ZONESTYLE_EXPORT static std::set<MappingStyleTab_e> m_availableMappingTabs;

    ~ZoneStyleDialog() override;

    void setVisible(bool visible) override;
    void allowNarrow() override;
    int refreshCount() const { return m_refreshCount; }

private Q_SLOTS:
    void on_plotAttr_FD_PageGroup_currentChanged(int index);
    void on_plotAttr_LP_PageGroup_currentChanged(int index);
    void on_plotAttr_MaptoolsCreateMap_Button_clicked(bool checked);
    void on_plotAttr_MaptoolsCopyMap_Button_clicked(bool checked);
    void on_plotAttr_MaptoolsDeleteMap_Button_clicked(bool checked);
    void on_plotAttr_MaptoolsMoveToTop_Button_clicked(bool checked);
    void on_plotAttr_MaptoolsMoveToBottom_Button_clicked(bool checked);
    void headerSectionResized(int logicalIndex, int oldSize, int newSize);
    void selectionPatternChanged(std::string const& pattern, SelectOption_s option);

private:
    using ModelAbstract = zonestyle::intern::models::ModelAbstract;
    using TableColumnHeader = uicontrols::TableColumnHeader;

    /// A tab to select once the tabs are those of the plot type.
    struct WantedTab
    {
        PlotType_e plotType;
        int index;
    };

    explicit ZoneStyleDialog(QWidget& parent);

    // Pages and tabs
    void installHelpAction();
    void finishEditing();
    void adoptPreferredSize();
    void updateZoneStyleDialog();
    void showFieldPage();
    void showLinePage();
    void showOptionalButtonBoxButtons(bool show);
    QTabWidget* getCurrentTabWidget();
    void showTab(QTabWidget& tabWidget, QWidget& page, bool show);
    int formPosition(const QWidget& page) const;
    void applyAvailableMappingTabs();
    void updateTabs(PlotType_e plotType);
    void adoptAvailableMappingTabs();
    void restoreLastTab();
    void selectWantedTab();
    void saveLastTab();
    bool isScatterTabCurrent() const;
    void confirmScatterVarAssignment();

    // Tables
    void createViewModels();
    void setupTableView();
    void showTable(QWidget& page, ModelAbstract& model);
    int tabKey(QWidget& page);
    void addTableViewAndFilterTo(QWidget* page);
    TableColumnHeader* getHeaderForModel(ModelAbstract* model);
    void configureColumnHeader(TableColumnHeader* header);
    void replaceColumnHeader(TableColumnHeader* header);
    void destroyHeaders();

    // Selection
    QItemSelectionModel* getSelectionModelFor(ModelAbstract* model);
    void destroySelectionModels();
    void copySelection(QItemSelectionModel* target, QItemSelectionModel* source);
    void makeSelectionFitModel();
    void scrollTableViewToSelection(int row);
    void selectRows(const std::vector<uicontrols::RowRange>& rows);
    void selectPickedObjects();
    void showSelectionCounts();

    // Map commands
    QModelIndexList selectedLineMapRows();
    void deleteLineMaps(toolbox::Set const& lineMaps);

    // Following the document
    void noteMissed(toolbox::StateChangeEventInterface const& event);
    void stateChanged(toolbox::StateChangeEventInterface const& event);
    void processStateChangeOnIdle();
    void processStateChange();
    void refresh();
    void catchUp();

    std::unique_ptr<zonestyle::intern::ZoneStyleForm> m_form;
    std::unique_ptr<OnIdleActionPerformerSingleShot> m_stateChangePerformer;
    std::unique_ptr<OnIdleActionPerformerSingleShot> m_pickPerformer;
    std::unique_ptr<OnIdleActionPerformerSingleShot> m_countPerformer;
    corvala::dialogs::common::TabWidgetLaunchHelpAction* m_helpAction = nullptr; ///< owned by Qt
    std::unique_ptr<zonestyle::intern::views::StyleTableView> m_tableView;
    ModelAbstract* m_currentModel = nullptr; ///< not owned
    TableColumnHeader* m_lastHeader = nullptr; ///< configured last; not owned
    std::unique_ptr<uicontrols::MapSelectionByPattern> m_mapSelection;
    std::map<ModelAbstract*, QItemSelectionModel*> m_selectionModels; ///< owned
    std::unique_ptr<zonestyle::intern::models::ModelForPageMap> m_modelForPageMap;
    std::map<ModelAbstract*, std::unique_ptr<TableColumnHeader>> m_headers;
    std::map<const QWidget*, QString> m_removedTabTexts;
    std::unique_ptr<signaling::SignalConnectionCollection> m_connections;

    std::optional<WantedTab> m_wantedTab;
    bool m_changeMissed = false; ///< the document changed while the dialog was not open
    bool m_plotTypeChangeMissed = false;
    bool m_hasBeenShown = false;
    int m_refreshCount = 0;
};

} // namespace corvala::sdk::ui::dialogs
