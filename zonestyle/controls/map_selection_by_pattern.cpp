// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/map_selection_by_pattern.h"

#include "zonestyle/controls/map_selection_by_pattern_properties_manager.h"

#include <sdk/propertybindings/button_binding.h>
#include <sdk/propertybindings/label_property_binding.h>
#include <sdk/propertybindings/line_edit_property_binding.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace corvala::sdk::ui::dialogs::uicontrols {

namespace {

/// Keeps Return, which would go on to the dialog and press its default button.
class PatternLineEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        QLineEdit::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            event->accept();
    }
};

} // namespace

struct MapSelectionByPattern::Bindings
{
    propertybindings::LabelPropertyBinding label;
    propertybindings::LineEditPropertyBinding pattern;
    propertybindings::ButtonBinding apply;
    propertybindings::ButtonBinding groups;
    propertybindings::ButtonBinding clear;
};

MapSelectionByPattern::MapSelectionByPattern(QWidget* parent)
    : QWidget(parent)
    , m_properties(std::make_unique<propertymanager::MapSelectionByPatternPropertiesManager>())
{
    setupUi();
    m_properties->labelText().set(m_label->text().toStdString());
    m_bindings.reset(new Bindings {
        {m_label, m_properties->labelText()},
        {m_lineEdit, m_properties->pattern()},
        {m_applyButton, [this] { applyPattern(); }, m_properties->relevanceOf(SelectOption_Names)},
        {m_groupsButton, [this] { applyPatternToGroups(); },
         m_properties->relevanceOf(SelectOption_Groups)},
        {m_clearButton, [this] { clearPattern(); }},
    });
    connect(m_lineEdit, &QLineEdit::returnPressed, m_applyButton, &QPushButton::click);
}

MapSelectionByPattern::~MapSelectionByPattern() = default;

propertymanager::MapSelectionByPatternPropertiesManager& MapSelectionByPattern::propertiesManager()
{
    return *m_properties;
}

void MapSelectionByPattern::setTabOrderAfter(QWidget& widget)
{
    setTabOrder(&widget, m_lineEdit);
    setTabOrder(m_lineEdit, m_applyButton);
    setTabOrder(m_applyButton, m_groupsButton);
    setTabOrder(m_groupsButton, m_clearButton);
}

void MapSelectionByPattern::setLeastWidths()
{
    m_lineEdit->setMinimumWidth(fontMetrics().averageCharWidth() * 10);
}

void MapSelectionByPattern::setupUi()
{
    setObjectName(QStringLiteral("MapSelectionByPattern"));
    setWindowTitle(tr("Form"));
    auto* layout = new QHBoxLayout(this);
    layout->setObjectName(QStringLiteral("horizontalLayout_3"));
    layout->setContentsMargins(0, 0, 0, 0);
    m_label = new QLabel(tr("Selection &criteria:"), this);
    m_label->setObjectName(QStringLiteral("mapSelectionByPattern_pattern_label"));
    layout->addWidget(m_label);
    m_lineEdit = new PatternLineEdit(this);
    m_lineEdit->setObjectName(QStringLiteral("mapSelectionByPattern_pattern_lineEdit"));
    m_lineEdit->setMinimumWidth(200);
    m_lineEdit->setAccessibleName(tr("Selection criteria"));
    m_lineEdit->setPlaceholderText(QStringLiteral("wing*, */inlet"));
    m_lineEdit->setToolTip(
        tr("* stands for any text, ? for one character: wing* finds what begins with \"wing\", "
           "*/inlet what ends with \"/inlet\""));
    m_lineEdit->setAccessibleDescription(m_lineEdit->toolTip());
    m_label->setBuddy(m_lineEdit);
    layout->addWidget(m_lineEdit);
    m_applyButton = addButton(*layout, "mapSelectionByPattern_apply_button", tr("&Zones"));
    m_groupsButton = addButton(*layout, "mapSelectionByPattern_groups_button", tr("&Groups"));
    m_clearButton = addButton(*layout, "mapSelectionByPattern_clear_button", tr("C&lear"));
    m_counts = new QLabel(this);
    m_counts->setObjectName(QStringLiteral("mapSelectionByPattern_counts_label"));
    m_counts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_counts->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->addWidget(m_counts);
    layout->setStretch(5, 1);
}

void MapSelectionByPattern::showCounts(int selectedRows, int rows)
{
    const QString selected = tr("%L1 of %L2 selected");
    const QString nothing = tr("Nothing found");
    m_counts->setText(m_foundNothing ? nothing : selected.arg(selectedRows).arg(rows));
    const auto widthOf = [this](const QString& text) {
        return m_counts->fontMetrics().horizontalAdvance(text);
    };
    m_counts->setMinimumWidth(qMax(widthOf(nothing), widthOf(selected.arg(rows).arg(rows))));
}

QPushButton* MapSelectionByPattern::addButton(QHBoxLayout& layout, const char* objectName,
                                              const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(objectName));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMaximumSize(fontMetrics().averageCharWidth() * 20, button->sizeHint().height());
    layout.addWidget(button);
    return button;
}

void MapSelectionByPattern::applyPattern()
{
    send(SelectOption_Names);
}

void MapSelectionByPattern::applyPatternToGroups()
{
    send(SelectOption_Groups);
}

void MapSelectionByPattern::clearPattern()
{
    m_properties->pattern().set({});
    send(SelectOption_None);
}

void MapSelectionByPattern::send(SelectOption_s option)
{
    const std::string pattern = m_properties->pattern().get();
    Q_EMIT patternChanged(pattern, option);
    m_properties->noteApplied(option);
}

void MapSelectionByPattern::selectionChanged()
{
    m_foundNothing = false;
    m_properties->selectionChanged().set(true);
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
