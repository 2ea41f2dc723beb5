// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/dynamic_line_map_text_edit_properties_manager.h"

#include <sdk/propertymanager/boolean_property_dependent_relevance.h>

#include <boost/make_shared.hpp>

namespace corvala::sdk::ui::propertymanager {

DynamicLineMapTextEditPropertiesManager::DynamicLineMapTextEditPropertiesManager(std::string text)
    : m_text(std::move(text))
    , m_relevance(boost::make_shared<corvala::propertymanager::BooleanPropertyDependentRelevance>(
          m_tokenChosen))
{
}

DynamicLineMapTextEditPropertiesManager::~DynamicLineMapTextEditPropertiesManager() = default;

boost::shared_ptr<property::RelevanceInterface const>
DynamicLineMapTextEditPropertiesManager::relevance() const
{
    return m_relevance;
}

} // namespace corvala::sdk::ui::propertymanager
