// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/button_binding.h"

#include <QAbstractButton>

namespace corvala::propertybindings {

ButtonBinding::ButtonBinding(QAbstractButton* button, boost::function<void()> command,
                             boost::shared_ptr<property::RelevanceInterface const> relevance)
    : m_button(button)
    , m_relevance(std::move(relevance))
    , m_clicked(QObject::connect(button, &QAbstractButton::clicked, button,
                                 [command = std::move(command)] { command(); }))
{
    if (!m_relevance)
        return;
    m_changed = m_relevance->connectChanged([this] { updateEnabled(); });
    updateEnabled();
}

ButtonBinding::~ButtonBinding()
{
    QObject::disconnect(m_clicked);
}

void ButtonBinding::updateEnabled()
{
    if (m_button)
        m_button->setEnabled(m_relevance->isRelevant());
}

} // namespace corvala::propertybindings
