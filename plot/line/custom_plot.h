// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The header of QCustomPlot needs Qt's keywords, which the project switches off.
#include <QtGlobal>
#define signals Q_SIGNALS
#define slots Q_SLOTS
#define emit Q_EMIT
#define foreach Q_FOREACH
#include <qcustomplot.h>
#undef signals
#undef slots
#undef emit
#undef foreach
