// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QString>

namespace corvala::plot {

/// Why a picture of this size cannot be drawn, for the user; empty when it can.
QString sizeProblem(const QSize& size);

} // namespace corvala::plot
