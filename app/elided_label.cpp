// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/elided_label.h"

#include <QPainter>
#include <QStyle>

namespace corvala::app {

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect place = contentsRect();
    style()->drawItemText(&painter, place, Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
                          fontMetrics().elidedText(text(), Qt::ElideRight, place.width()),
                          foregroundRole());
}

} // namespace corvala::app
