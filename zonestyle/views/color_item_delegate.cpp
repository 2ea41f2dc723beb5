// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/color_item_delegate.h"

#include <QPainter>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

static constexpr int kSwatchWidth = 48;
static constexpr int kSwatchMargin = 3;

static QColor halfway(const QColor& from, const QColor& to)
{
    return QColor((from.red() + to.red()) / 2, (from.green() + to.green()) / 2,
                  (from.blue() + to.blue()) / 2);
}

void ColorItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    if (!index.isValid())
        return;
    const QStyleOptionViewItem cell = cellOption(option, index);
    drawBackground(painter, cell, index);
    const QColor color = index.data(Qt::DisplayRole).value<QColor>();
    if (color.isValid())
        drawSwatch(*painter, cell, color, index.data(Qt::AccessibleTextRole).toString());
    drawFocus(painter, cell, cell.rect);
}

/// A cell that does not apply has a pale swatch, so that it cannot be taken for a colour in use.
void ColorItemDelegate::drawSwatch(QPainter& painter, const QStyleOptionViewItem& cell,
                                   const QColor& color, const QString& hint) const
{
    const bool isEnabled = cell.state.testFlag(QStyle::State_Enabled);
    const QColor base = cell.palette.color(QPalette::Normal, QPalette::Base);
    const QColor shown = isEnabled ? color : halfway(color, base);
    const QRect swatch =
        cell.rect.adjusted(kSwatchMargin, kSwatchMargin, -kSwatchMargin - 1, -kSwatchMargin - 1);
    painter.save();
    painter.setPen(isEnabled ? framePen() : QPen(halfway(framePen().color(), base)));
    painter.setBrush(shown);
    painter.drawRect(swatch);
    if (!hint.isEmpty()) {
        painter.setFont(cell.font);
        painter.setPen(qGray(shown.rgb()) > 127 ? Qt::black : Qt::white);
        painter.drawText(swatch, Qt::AlignCenter,
                         cell.fontMetrics.elidedText(hint, Qt::ElideRight, swatch.width()));
    }
    painter.restore();
}

QSize ColorItemDelegate::contentsSize(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    return {kSwatchWidth, option.fontMetrics.height()};
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
