// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/font_choice.h"

#include <sdk/base/enums.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

#include <algorithm>

namespace corvala::dialogs::prompt {

FontChoice::FontChoice(QWidget* parent)
    : QObject(parent)
    , m_useBaseFont(new QCheckBox(tr("Use &base font"), parent))
    , m_fontLabel(new QLabel(tr("&Font:"), parent))
    , m_font(new QComboBox(parent))
{
    m_font->addItem(tr("None"), FontOverride_None);
    m_font->addItem(tr("Greek"), FontOverride_Greek);
    m_font->addItem(tr("Math"), FontOverride_Math);
    m_font->addItem(tr("User"), FontOverride_User);
    m_fontLabel->setBuddy(m_font);
    connect(m_useBaseFont, &QCheckBox::toggled, this, &FontChoice::updateEnabled);
    connect(m_useBaseFont, &QCheckBox::clicked, this, &FontChoice::useBaseFontClicked);
    connect(m_font, QOverload<int>::of(&QComboBox::activated), this,
            [this] { Q_EMIT fontOverrideActivated(fontOverride()); });
}

void FontChoice::addTo(QFormLayout& form)
{
    form.addRow(m_useBaseFont);
    form.addRow(m_fontLabel, m_font);
}

void FontChoice::setUseBaseFont(bool useBaseFont)
{
    m_useBaseFont->setChecked(useBaseFont);
}

void FontChoice::setFontOverride(int fontOverride)
{
    m_font->setCurrentIndex(std::max(0, m_font->findData(fontOverride)));
}

void FontChoice::setEnabled(bool enabled)
{
    m_isEnabled = enabled;
    updateEnabled();
}

bool FontChoice::useBaseFont() const
{
    return m_useBaseFont->isChecked();
}

int FontChoice::fontOverride() const
{
    return m_font->currentData().toInt();
}

void FontChoice::updateEnabled()
{
    m_useBaseFont->setEnabled(m_isEnabled);
    m_fontLabel->setEnabled(m_isEnabled && !useBaseFont());
    m_font->setEnabled(m_isEnabled && !useBaseFont());
}

} // namespace corvala::dialogs::prompt
