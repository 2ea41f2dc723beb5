// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/dialog/export.h"

#include <sdk/property/property_dependent_relevance.h>
#include <sdk/propertybindings/list_model.h>

// Instantiated here for the programs that load the module.

namespace corvala::property {
template class ZONESTYLE_EXPORT PropertyDependentRelevance<bool>;
}

namespace corvala::propertybindings {
template class ZONESTYLE_EXPORT ListModelInterface<int>;
template class ZONESTYLE_EXPORT ListModelInterface<double>;
template class ZONESTYLE_EXPORT ListModelAbstract<int>;
template class ZONESTYLE_EXPORT ListModelAbstract<double>;
}
