// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/map_selection_by_pattern_properties_manager.h"

#include <sdk/propertymanager/boolean_property_dependent_relevance.h>
#include <sdk/propertymanager/property_predicate_dependent_relevance.h>
#include <sdk/propertymanager/relevance_expression.h>

#include <boost/make_shared.hpp>

namespace corvala::sdk::ui::propertymanager {

using corvala::propertymanager::BooleanPropertyDependentRelevance;
using corvala::propertymanager::PropertyPredicateDependentRelevance;
using corvala::propertymanager::RelevanceExpression;

MapSelectionByPatternPropertiesManager::MapSelectionByPatternPropertiesManager()
{
    const RelevanceExpression selectionIsOther(
        boost::make_shared<BooleanPropertyDependentRelevance>(m_selectionChanged));
    const RelevanceExpression patternIsOther(
        boost::make_shared<PropertyPredicateDependentRelevance>(
            std::vector<const property::PropertyAbstract*> {&m_pattern, &m_lastAppliedPattern},
            [this] { return m_pattern.get() != m_lastAppliedPattern.get(); }));
    m_relevance = selectionIsOther || patternIsOther;
}

MapSelectionByPatternPropertiesManager::~MapSelectionByPatternPropertiesManager() = default;

boost::shared_ptr<property::RelevanceInterface const>
MapSelectionByPatternPropertiesManager::relevance() const
{
    return m_relevance;
}

boost::shared_ptr<property::RelevanceInterface const>
MapSelectionByPatternPropertiesManager::relevanceOf(int option) const
{
    const RelevanceExpression optionIsOther(boost::make_shared<PropertyPredicateDependentRelevance>(
        std::vector<const property::PropertyAbstract*> {&m_lastAppliedOption}, [this, option] {
            return m_lastAppliedOption.get() != 0 && m_lastAppliedOption.get() != option;
        }));
    return RelevanceExpression(m_relevance) || optionIsOther;
}

void MapSelectionByPatternPropertiesManager::noteApplied(int option)
{
    m_lastAppliedOption.set(option);
    m_selectionChanged.set(false);
    m_lastAppliedPattern.set(m_pattern.get());
}

} // namespace corvala::sdk::ui::propertymanager
