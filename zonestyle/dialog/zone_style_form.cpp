// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/zone_style_form.h"

#include "zonestyle/dialog/zone_style_tabs.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

namespace {

struct MapToolButton
{
    const char* objectName;
    const char* text;
};

constexpr MapToolButton kMapToolButtons[ZoneStyleForm::kMapToolCount] = {
    {"plotAttr_MaptoolsCreateMap_Button", QT_TRANSLATE_NOOP("ZoneStyle", "C&reate Map...")},
    {"plotAttr_MaptoolsCopyMap_Button", QT_TRANSLATE_NOOP("ZoneStyle", "Copy &Map")},
    {"plotAttr_MaptoolsDeleteMap_Button", QT_TRANSLATE_NOOP("ZoneStyle", "&Delete Map")},
    {"plotAttr_MaptoolsMoveToTop_Button", QT_TRANSLATE_NOOP("ZoneStyle", "To &Top")},
    {"plotAttr_MaptoolsMoveToBottom_Button", QT_TRANSLATE_NOOP("ZoneStyle", "To &Bottom")},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("ZoneStyle", text);
}

template<class T>
T* named(T* object, const char* name)
{
    object->setObjectName(QString::fromLatin1(name));
    return object;
}

template<class Tabs>
std::vector<QWidget*> addTabs(QTabWidget& tabWidget, const Tabs& tabs)
{
    std::vector<QWidget*> pages;
    for (const TabDescriptor& tab : tabs) {
        auto* page = named(new QWidget, tab.page);
        named(new QGridLayout(page), tab.layout);
        tabWidget.addTab(page, translated(tab.text));
        pages.push_back(page);
    }
    return pages;
}

} // namespace

void ZoneStyleForm::setupUi(QDialog& dialog)
{
    named(&dialog, "ZoneStyle");
    dialog.resize(661, 237);
    auto* vboxLayout = named(new QVBoxLayout(&dialog), "vboxLayout");
    plotTypeStackedWidget = named(new QStackedWidget(&dialog), "plotTypeStackedWidget");
    addFieldPage();
    addLinePage();
    vboxLayout->addWidget(plotTypeStackedWidget);
    addButtons(*vboxLayout);
    dialog.setWindowTitle(translated(QT_TRANSLATE_NOOP("ZoneStyle", "Zone Style")));
    QObject::connect(buttonBox, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    plotTypeStackedWidget->setCurrentIndex(0);
    fieldTabs->setCurrentIndex(0);
    lineTabs->setCurrentIndex(0);
    dialogButtonBoxStack->setCurrentIndex(1);
    QMetaObject::connectSlotsByName(&dialog);
}

void ZoneStyleForm::addFieldPage()
{
    fieldMapPage = named(new QWidget, "fieldMapPage");
    auto* layout = named(new QVBoxLayout(fieldMapPage), "vboxLayout1");
    layout->setContentsMargins(0, 0, 0, 0);
    fieldTabs = named(new QTabWidget(fieldMapPage), "plotAttr_FD_PageGroup");
    fieldTabs->setUsesScrollButtons(false);
    fieldPages = addTabs(*fieldTabs, kFieldTabs);
    layout->addWidget(fieldTabs);
    plotTypeStackedWidget->addWidget(fieldMapPage);
}

void ZoneStyleForm::addLinePage()
{
    lineMapPage = named(new QWidget, "lineMapPage");
    auto* layout = named(new QGridLayout(lineMapPage), "gridLayout6");
    layout->setContentsMargins(0, 0, 0, 0);
    lineTabs = named(new QTabWidget(lineMapPage), "plotAttr_LP_PageGroup");
    lineTabs->setUsesScrollButtons(false);
    linePages = addTabs(*lineTabs, kLineTabs);
    layout->addWidget(lineTabs, 0, 0);
    plotTypeStackedWidget->addWidget(lineMapPage);
}

void ZoneStyleForm::addButtons(QVBoxLayout& dialogLayout)
{
    dialogButtonBoxStack =
        named(new QStackedWidget(plotTypeStackedWidget->parentWidget()), "dialogButtonBoxStack");
    dialogButtonBoxStack->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    finalButtonsPage = named(new QWidget, "finalButtonsPage");
    auto* finalLayout = named(new QVBoxLayout(finalButtonsPage), "vboxLayout2");
    finalLayout->setContentsMargins(0, 0, 0, 0);
    buttonBox =
        named(new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, finalButtonsPage),
              "buttonBox");
    finalLayout->addWidget(buttonBox);
    dialogButtonBoxStack->addWidget(finalButtonsPage);
    addMapToolButtons();
    dialogLayout.addWidget(dialogButtonBoxStack);
}

void ZoneStyleForm::addMapToolButtons()
{
    additionalButtonsPage = named(new QWidget, "additionalButtonsPage");
    auto* layout = named(new QHBoxLayout(additionalButtonsPage), "hboxLayout");
    layout->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i < kMapToolCount; ++i) {
        auto* button =
            named(new QPushButton(translated(kMapToolButtons[i].text), additionalButtonsPage),
                  kMapToolButtons[i].objectName);
        layout->addWidget(button);
        mapToolButtons[static_cast<std::size_t>(i)] = button;
    }
    dialogButtonBoxStack->addWidget(additionalButtonsPage);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
