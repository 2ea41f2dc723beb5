// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class QAction;

namespace corvala::app {

class NoticeBar;

/// Tells in the notice bar why a layer that was switched on shows nothing, with a button that mends
/// it.
class LayerNotes : public QObject
{
    Q_OBJECT

public:
    /// The notice bar must outlive the notes.
    explicit LayerNotes(NoticeBar& bar, QObject* parent = nullptr);

    /// A layer was switched on or off, or comes with new data; the action has its name and text.
    void explain(QAction& layer);
    /// The document changed, perhaps so that the note is true no longer.
    void refresh();

private:
    void tell();
    void mend();

    NoticeBar& m_bar;
    QPointer<QAction> m_layer; ///< that the note is about; null without a note
    int m_note = 0;
};

} // namespace corvala::app
