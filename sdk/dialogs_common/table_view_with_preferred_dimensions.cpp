// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/table_view_with_preferred_dimensions.h"

#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>

namespace corvala::dialogs::common {

/// Length of the first `count` sections that show, from the left or top.
static int lengthOfSections(const QHeaderView& header, int count)
{
    int length = 0;
    int taken = 0;
    for (int visual = 0; visual < header.count() && taken < count; ++visual) {
        const int section = header.logicalIndex(visual);
        if (header.isSectionHidden(section))
            continue;
        length += header.sectionSize(section);
        ++taken;
    }
    return length + (count - taken) * header.defaultSectionSize();
}

static int thickness(const QHeaderView& header)
{
    if (header.isHidden())
        return 0;
    const QSize size = header.sizeHint();
    return header.orientation() == Qt::Horizontal ? size.height() : size.width();
}

TableViewWithPreferredDimensions::TableViewWithPreferredDimensions(QWidget* parent)
    : QTableView(parent)
{
}

void TableViewWithPreferredDimensions::setPreferredNumberOfRows(int rows)
{
    m_rows = rows;
    updateGeometry();
}

void TableViewWithPreferredDimensions::setPreferredNumberOfColumns(int columns)
{
    m_columns = columns;
    updateGeometry();
}

QSize TableViewWithPreferredDimensions::sizeHint() const
{
    const int frame = 2 * frameWidth();
    QSize hint = QTableView::sizeHint();
    if (m_columns > 0)
        hint.setWidth(frame + thickness(*verticalHeader())
                      + lengthOfSections(*horizontalHeader(), m_columns)
                      + verticalScrollBar()->sizeHint().width());
    if (m_rows > 0)
        hint.setHeight(frame + thickness(*horizontalHeader())
                       + lengthOfSections(*verticalHeader(), m_rows)
                       + horizontalScrollBar()->sizeHint().height());
    // Room is left for the window around the table.
    const QSize available = screen()->availableSize();
    return hint.boundedTo({available.width() * 9 / 10, available.height() * 7 / 10});
}

} // namespace corvala::dialogs::common
