// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/uicommon/edit_session.h"

#include <sdk/base/enums.h>
#include <sdk/signals/state_change_event_observable.h>
#include <sdk/toolbox/state_change_event.h>

#include <boost/signals2/connection.hpp>

#include <QDialog>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvala::sdk::ui {

/// Whether rows, and what is offered for them, may mean something else afterwards.
static bool changesWhatRowsMean(const toolbox::StateChangeEventInterface& event)
{
    switch (event.stateChange()) {
    case StateCode_Style: return event.hasStyleParams() && event.styleParam(1) == "PlotType";
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_FieldMapListChanged:
    case StateCode_LineMapListChanged:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached:
    case StateCode_ZonesAdded:
    case StateCode_ZonesRemoved:
    case StateCode_VariableListChanged:
    case StateCode_UndoApplied:
    case StateCode_RedoApplied:
    case StateCode_FrameListChanged:
    case StateCode_ActiveFrameChanged: return true;
    default: return false;
    }
}

static unsigned long long theGeneration = 0;

struct EditSession::Open
{
    boost::function<void()> close; ///< empty once it was called

    /// What is open, in the order in which it was opened.
    static std::vector<std::shared_ptr<Open>>& all()
    {
        static std::vector<std::shared_ptr<Open>> sessions;
        return sessions;
    }

    static void followDocument()
    {
        static const boost::signals2::scoped_connection connection =
            signaling::StateChangeEventObservable::getInstance().connect(
                [](const toolbox::StateChangeEventInterface& event) {
                    if (!changesWhatRowsMean(event))
                        return;
                    ++theGeneration;
                    closeAll();
                });
    }
};

EditSession::EditSession(boost::function<void()> close)
    : m_open(std::make_shared<Open>())
{
    m_open->close = std::move(close);
    Open::followDocument();
    Open::all().push_back(m_open);
}

EditSession::~EditSession()
{
    auto& sessions = Open::all();
    sessions.erase(std::remove(sessions.begin(), sessions.end(), m_open), sessions.end());
}

bool EditSession::isValid() const
{
    return !m_open->close.empty();
}

/// Closing may end sessions, and open others, which are not meant.
void EditSession::closeAll()
{
    const auto sessions = Open::all();
    for (auto session = sessions.rbegin(); session != sessions.rend(); ++session) {
        if (const auto close = std::exchange((*session)->close, {}))
            close();
    }
}

unsigned long long EditSession::documentGeneration()
{
    Open::followDocument();
    return theGeneration;
}

int execInEditSession(QDialog& dialog)
{
    const QPointer<QDialog> guard(&dialog);
    const EditSession session([guard] {
        if (guard)
            guard->reject();
    });
    const int result = dialog.exec();
    return guard && session.isValid() ? result : QDialog::Rejected;
}

} // namespace corvala::sdk::ui
