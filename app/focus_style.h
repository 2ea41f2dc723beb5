// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace corvala::app {

/// The style of the desktop, which marks tool buttons, and those of lists, that have the focus or
/// are switched on, so that it is seen in light and dark palettes.
class FocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

} // namespace corvala::app
