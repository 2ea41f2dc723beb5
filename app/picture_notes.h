// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/scene_note.h"

#include <QObject>

#include <vector>

namespace corvala::app {

class NoticeBar;

/// Tells in the notice bar what one would wonder at in the picture, once: a note that is closed
/// comes again only after the picture was without it.
class PictureNotes : public QObject
{
    Q_OBJECT

public:
    /// The notice bar must outlive the notes.
    explicit PictureNotes(NoticeBar& bar, QObject* parent = nullptr);

    /// A picture is complete, and this is to be said of it: the first one is told, and the others
    /// when that is mended.
    void tell(const std::vector<plot::SceneNote>& notes);

Q_SIGNALS:
    /// The user asks for the values of the frame among which this one is.
    void detailsWanted(corvala::style::Key value, int index);

private:
    NoticeBar& m_bar;
    QString m_told; ///< while it is true
    int m_note = 0;
};

} // namespace corvala::app
