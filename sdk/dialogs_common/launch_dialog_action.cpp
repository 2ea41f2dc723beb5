// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/launch_dialog_action.h"

#include <sdk/dialogs_common/dialog_interface.h>

namespace corvala::dialogs::common {

LaunchDialogAction::LaunchDialogAction(
    const QString& text, boost::shared_ptr<property::RelevanceInterface const> relevance,
    boost::function<DialogInterface&()> dialog, QObject* parent)
    : QAction(text, parent)
    , m_relevance(std::move(relevance))
    , m_dialog(std::move(dialog))
{
    connect(this, &QAction::triggered, this, [this] {
        if (isEnabled()) // a disabled action can be triggered by code
            m_dialog().launch();
    });
    if (m_relevance)
        m_connection = m_relevance->connectChanged([this] { updateEnabled(); });
    updateEnabled();
}

LaunchDialogAction::~LaunchDialogAction() = default;

void LaunchDialogAction::updateEnabled()
{
    setEnabled(!m_relevance || m_relevance->isRelevant());
}

} // namespace corvala::dialogs::common
