// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_notes.h"

#include "app/notice_bar.h"
#include "host/document/document.h"

#include <utility>

namespace corvala::app {

PictureNotes::PictureNotes(NoticeBar& bar, QObject* parent)
    : QObject(parent)
    , m_bar(bar)
{
}

void PictureNotes::tell(const std::vector<plot::SceneNote>& notes)
{
    const plot::SceneNote* const note = notes.empty() ? nullptr : &notes.front();
    const QString text = note ? note->text : QString();
    if (std::exchange(m_told, text) == text)
        return;
    if (!note)
        m_note = m_bar.tellInPassing(m_note, {});
    else if (!note->mending)
        m_note = m_bar.tellInPassing(m_note, text, tr("Plot Details..."),
                                     [this, value = note->about, index = note->index] {
                                         Q_EMIT detailsWanted(value, index);
                                     });
    else
        m_note = m_bar.tellInPassing(m_note, text, note->caption, [value = *note->mending] {
            host::Document::instance().execute(value);
        });
}

} // namespace corvala::app
