// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/focus_style.h"

#include <QPainter>
#include <QStyleOptionComplex>

namespace corvala::app {

/// Desktops show by a shade alone what is switched on, which is lost on dark windows.
static void markSwitchedOn(QPainter& painter, const QStyleOption& option)
{
    constexpr int kDark = 128;
    constexpr qreal kShare = 0.35; // of the colour
    if (option.palette.color(QPalette::Window).lightness() >= kDark)
        return;
    QColor color = option.palette.color(QPalette::Highlight);
    color.setAlphaF(kShare);
    painter.fillRect(option.rect.adjusted(1, 1, -1, -1), color);
}

static void markFocus(QPainter& painter, const QStyleOption& option)
{
    constexpr qreal kRadius = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), kRadius, kRadius);
    painter.restore();
}

void FocusStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_ToolButton)
        return;
    const QStyle::State state = option->state;
    if (state.testFlag(State_On) && state.testFlag(State_AutoRaise))
        markSwitchedOn(*painter, *option);
    if (state.testFlag(State_HasFocus) && state.testFlag(State_KeyboardFocusChange))
        markFocus(*painter, *option);
}

} // namespace corvala::app
