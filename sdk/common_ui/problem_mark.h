// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QString;
class QWidget;

namespace corvala::ui {

/// Marks a field whose text does not fit, with what is wrong as tool tip and for screen readers; an
/// empty problem takes the mark away.
void markProblem(QWidget& field, const QString& problem);

} // namespace corvala::ui
