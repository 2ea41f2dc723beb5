// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <array>
#include <vector>

class QDialog;
class QDialogButtonBox;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QVBoxLayout;
class QWidget;

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

/// The widgets of the dialog. They are children of the dialog that setupUi is given; the tab pages
/// are empty.
class ZoneStyleForm
{
public:
    static constexpr int kMapToolCount = 5;

    /// Builds the form and connects the dialog's slots by name. To be called once.
    void setupUi(QDialog& dialog);

    QStackedWidget* plotTypeStackedWidget = nullptr;
    QWidget* fieldMapPage = nullptr;
    QTabWidget* fieldTabs = nullptr;
    std::vector<QWidget*> fieldPages; ///< as kFieldTabs
    QWidget* lineMapPage = nullptr;
    QTabWidget* lineTabs = nullptr;
    std::vector<QWidget*> linePages; ///< as kLineTabs
    QStackedWidget* dialogButtonBoxStack = nullptr;
    QWidget* finalButtonsPage = nullptr;
    QDialogButtonBox* buttonBox = nullptr;
    QWidget* additionalButtonsPage = nullptr;
    /// Create, copy, delete, move to top, move to bottom.
    std::array<QPushButton*, kMapToolCount> mapToolButtons {};

private:
    void addFieldPage();
    void addLinePage();
    void addButtons(QVBoxLayout& dialogLayout);
    void addMapToolButtons();
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
