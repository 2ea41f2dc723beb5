// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/problem_mark.h"

#include <QPalette>
#include <QWidget>

namespace corvala::ui {

/// A quarter of the way from the field's colour to that of warnings.
static QColor warningBase(const QColor& base)
{
    constexpr int kShare = 4;
    const QColor warning(220, 60, 40);
    const auto mixed = [](int from, int to) { return from + (to - from) / kShare; };
    return {mixed(base.red(), warning.red()), mixed(base.green(), warning.green()),
            mixed(base.blue(), warning.blue())};
}

void markProblem(QWidget& field, const QString& problem)
{
    QPalette colors;
    if (!problem.isEmpty())
        colors.setColor(QPalette::Base, warningBase(colors.color(QPalette::Base)));
    field.setPalette(colors);
    field.setToolTip(problem);
    field.setAccessibleDescription(problem);
}

} // namespace corvala::ui
