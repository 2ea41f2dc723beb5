// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/label_property_binding.h"

#include <QLabel>

namespace corvala::propertybindings {

LabelPropertyBinding::LabelPropertyBinding(QLabel* label, property::Property<std::string>& text)
    : m_label(label)
    , m_text(text)
    , m_connection(text.connectChanged([this] { showText(); }))
{
    showText();
}

void LabelPropertyBinding::showText()
{
    if (m_label)
        m_label->setText(QString::fromStdString(m_text.get()));
}

} // namespace corvala::propertybindings
