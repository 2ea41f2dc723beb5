// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/scatter_size_font_dialog.h"

#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/private/font_choice.h>
#include <sdk/private/numbered_name_list_model.h>
#include <sdk/private/shared_instance.h>
#include <sdk/toolbox/style_value.h>
#include <sdk/uicommon/style_writing.h>

#include <QDialogButtonBox>
#include <QFormLayout>

namespace corvala::dialogs::prompt {

static constexpr const auto& kCharacter = style::fieldMap.scatter.symbolShape.asciiShape;

ScatterSizeFontDialog& ScatterSizeFontDialog::getInstance(QWidget* parent)
{
    static QPointer<ScatterSizeFontDialog> instance;
    return common::sharedInstance(instance, parent,
                                  [](QWidget* owner) { return new ScatterSizeFontDialog(owner); });
}

ScatterSizeFontDialog::ScatterSizeFontDialog(QWidget* parent)
    : DocumentDialog(parent)
    , m_variables(new common::NumberedNameListModel(this))
    , m_variable(new ui::ComboBoxAutoFilter(this))
    , m_font(new FontChoice(this))
{
    setWindowTitle(tr("Scatter Size and Font"));
    m_variable->setListModel(m_variables);
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Size variable:"), m_variable);
    m_font->addTo(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, Qt::Horizontal, this);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_variable, &ui::ComboBoxAutoFilter::selectionComplete, this,
            &ScatterSizeFontDialog::writeVariable);
    connect(m_font, &FontChoice::useBaseFontClicked, this,
            [this](bool useBaseFont) { writeFont(kCharacter.useBaseFont, useBaseFont ? 1 : 0); });
    connect(m_font, &FontChoice::fontOverrideActivated, this,
            [this](int fontOverride) { writeFont(kCharacter.fontOverride, fontOverride); });
}

bool ScatterSizeFontDialog::isConcernedBy(const toolbox::StateChangeEventInterface& event) const
{
    if (event.stateChange() != StateCode_Style)
        return event.stateChange() < StateCode_View;
    const std::string name = event.styleParam(1);
    return name == "GlobalScatter" || name == "ActiveFieldMaps"
        || (name == "FieldMap" && event.styleParam(3) == "SymbolShape");
}

void ScatterSizeFontDialog::readDocument()
{
    m_variables->listVariables(true);
    m_variable->setEnabled(CvlUtilDataSetIsAvailable() != 0);
    const toolbox::StyleValue sizeVariable(style::globalScatter.var);
    m_variable->setCurrentIndex(m_variables->rowOf(sizeVariable.read<CvlInt64>().value_or(0)));

    const toolbox::StyleValue active(style::activeFieldMaps);
    m_activeMaps = active.read<toolbox::Set>().value_or(toolbox::Set());
    m_font->setEnabled(!m_activeMaps.isEmpty());
    const CvlInt64 first = m_activeMaps.next(0);
    const toolbox::StyleValue useBaseFont(kCharacter.useBaseFont);
    m_font->setUseBaseFont(useBaseFont.read<bool>(first).value_or(true));
    const toolbox::StyleValue fontOverride(kCharacter.fontOverride);
    m_font->setFontOverride(fontOverride.read<int>(first).value_or(FontOverride_None));
}

void ScatterSizeFontDialog::writeVariable()
{
    const CvlInt64 variable = m_variables->numberAt(m_variable->currentIndex());
    sdk::ui::writeStyle(style::globalScatter.var, nullptr, static_cast<double>(variable));
}

void ScatterSizeFontDialog::writeFont(style::Key key, int value)
{
    sdk::ui::writeStyle(key, &m_activeMaps, value);
}

} // namespace corvala::dialogs::prompt
