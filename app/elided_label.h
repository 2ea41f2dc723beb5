// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace corvala::app {

/// A line of plain text that gives way where there is no room, and is then cut short.
class ElidedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace corvala::app
