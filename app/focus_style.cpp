// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/focus_style.h"

#include <QPainter>
#include <QStyleOptionComplex>

namespace corvala::app {

void FocusStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const bool isMarked = control == CC_ToolButton && option->state.testFlag(State_HasFocus)
        && option->state.testFlag(State_KeyboardFocusChange);
    if (!isMarked)
        return;
    constexpr qreal kRadius = 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(option->palette.color(QPalette::Highlight), 2));
    painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), kRadius, kRadius);
    painter->restore();
}

} // namespace corvala::app
