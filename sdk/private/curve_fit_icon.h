// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>

#include <QIcon>

namespace corvala::propertybindings {

/// A small picture of points and of the curve that a fit draws through them.
/// `extended` says which of the extended fits.
QIcon curveFitIcon(CurveType_e type, ExtendedFit_e extended);

} // namespace corvala::propertybindings
