// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/selectionless_header.h"

#include <vector>

namespace corvala::sdk::ui::dialogs::uicontrols {

/// The column header of a style table: white titles on the brush that the model gives for each
/// column. It belongs to one model and is attached to the view only while that model is shown.
class TableColumnHeader : public SelectionlessHeader
{
    Q_OBJECT

public:
    explicit TableColumnHeader(Qt::Orientation orientation, QWidget* parent = nullptr);

    /// The section, in logical numbers, that takes the width that the others leave; -1 for none.
    void setSpareWidthSection(int section) { m_spareWidthSection = section; }

    /// Gives each section the size of the first section of the other header with the same title.
    /// Sections without one keep their size.
    void copySectionSizes(const TableColumnHeader& other);

    /// Records the size and the place of every section.
    void recordSections();
    /// Puts back what was recorded last, once, if the sections are still as many.
    void restoreSections();

public Q_SLOTS:
    /// Raises a section to the width that its title needs; never lowers it.
    void ensureMinimumSize(int section, int oldSize, int newSize);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct SectionState
    {
        int size;
        int visualIndex;
    };

    void endDrag();
    QString title(int section) const;

    int m_spareWidthSection = -1;
    std::vector<SectionState> m_recorded; ///< by logical section; empty when nothing is recorded
};

} // namespace corvala::sdk::ui::dialogs::uicontrols
