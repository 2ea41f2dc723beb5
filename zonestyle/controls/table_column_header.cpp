// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/table_column_header.h"

#include <QHash>
#include <QMouseEvent>
#include <QPainter>

#include <limits>

namespace corvala::sdk::ui::dialogs::uicontrols {

TableColumnHeader::TableColumnHeader(Qt::Orientation orientation, QWidget* parent)
    : SelectionlessHeader(orientation, parent)
{
    setStretchLastSection(false);
    setCascadingSectionResizes(false);
    connect(this, &QHeaderView::sectionResized, this, &TableColumnHeader::ensureMinimumSize);
}

QString TableColumnHeader::title(int section) const
{
    return model() ? model()->headerData(section, orientation(), Qt::DisplayRole).toString()
                   : QString();
}

void TableColumnHeader::copySectionSizes(const TableColumnHeader& other)
{
    QHash<QString, int> sizes;
    for (int section = other.count() - 1; section >= 0; --section)
        sizes[other.title(section)] = other.sectionSize(section);
    for (int section = 0; section < count(); ++section) {
        const auto found = sizes.constFind(title(section));
        if (found != sizes.constEnd())
            resizeSection(section, *found);
    }
}

void TableColumnHeader::recordSections()
{
    m_recorded.clear();
    for (int section = 0; section < count(); ++section)
        m_recorded.push_back({sectionSize(section), visualIndex(section)});
}

void TableColumnHeader::restoreSections()
{
    const std::vector<SectionState> recorded = std::move(m_recorded);
    m_recorded.clear();
    if (static_cast<int>(recorded.size()) != count())
        return;
    std::vector<int> order(recorded.size());
    for (int section = 0; section < count(); ++section) {
        const SectionState& state = recorded[static_cast<std::size_t>(section)];
        resizeSection(section, state.size);
        order[static_cast<std::size_t>(state.visualIndex)] = section;
    }
    for (int visual = 0; visual < count(); ++visual)
        moveSection(visualIndex(order[static_cast<std::size_t>(visual)]), visual);
}

void TableColumnHeader::ensureMinimumSize(int section, int, int newSize)
{
    if (newSize == 0) // hidden
        return;
    const int needed = sectionSizeFromContents(section).width();
    if (newSize < needed)
        resizeSection(section, needed);
}

void TableColumnHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    if (!rect.isValid() || !model())
        return;
    const QVariant background = model()->headerData(section, orientation(), Qt::BackgroundRole);
    painter->fillRect(rect.adjusted(0, 0, -1, 0), background.value<QBrush>());
    painter->setPen(Qt::white);
    painter->drawText(rect, Qt::AlignCenter, title(section));
}

void TableColumnHeader::resizeEvent(QResizeEvent* event)
{
    SelectionlessHeader::resizeEvent(event);
    if (m_spareWidthSection < 0 || m_spareWidthSection >= count())
        return;
    const int spare = width() - length();
    resizeSection(
        m_spareWidthSection,
        qMax(sectionSizeHint(m_spareWidthSection), sectionSize(m_spareWidthSection) + spare));
}

/// A header that goes while its border is dragged, or whose window a question blocks, does not see
/// the button released. It would count as dragged for ever, and for that long the table paints
/// itself again and again.
void TableColumnHeader::endDrag()
{
    const QPointF besideAllSections(std::numeric_limits<int>::max() / 2, 0);
    QMouseEvent release(QEvent::MouseButtonRelease, besideAllSections, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    mouseReleaseEvent(&release);
}

void TableColumnHeader::hideEvent(QHideEvent* event)
{
    endDrag();
    SelectionlessHeader::hideEvent(event);
}

void TableColumnHeader::mousePressEvent(QMouseEvent* event)
{
    window()->installEventFilter(this);
    SelectionlessHeader::mousePressEvent(event);
}

bool TableColumnHeader::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window() && event->type() == QEvent::WindowBlocked)
        endDrag();
    return SelectionlessHeader::eventFilter(watched, event);
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
