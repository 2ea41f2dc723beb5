// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/layer_facts.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <tuple>

class QAction;

namespace corvala::app {

class NoticeBar;

/// Tells in the notice bar why a layer that is on shows nothing, with a button that mends it.
class LayerNotes : public QObject
{
    Q_OBJECT

public:
    /// The notice bar must outlive the notes.
    explicit LayerNotes(NoticeBar& bar, QObject* parent = nullptr);

    /// A layer was switched on or off, or comes with new data; the action has its name and text.
    void explain(QAction& layer);
    /// The document changed, perhaps so that the note is true no longer, or that one of the layers
    /// shows nothing now. What another plot brings with it is not told.
    void refresh(const QList<QAction*>& layers);

private:
    using Plot = std::tuple<CvlUniqueId, const host::DataSet*, PlotType_e>;

    void tell();
    void retell();
    void mend();

    NoticeBar& m_bar;
    QPointer<QAction> m_layer; ///< that the note is about; null without a note
    int m_note = 0;
    Plot m_plot; ///< that the gaps are of; the data are for comparison only
    QHash<QAction*, host::LayerGap> m_gaps; ///< as they were last
};

} // namespace corvala::app
