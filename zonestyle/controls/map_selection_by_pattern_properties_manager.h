// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>
#include <sdk/propertymanager/properties_manager_abstract.h>

#include <string>

namespace corvala::sdk::ui::propertymanager {

/// The state of the selection by pattern. Texts are UTF-8. Relevant while applying the pattern
/// could change the selection: the pattern was edited, or the selection changed by hand.
class MapSelectionByPatternPropertiesManager
    : public corvala::propertymanager::PropertiesManagerAbstract
{
public:
    MapSelectionByPatternPropertiesManager();
    ~MapSelectionByPatternPropertiesManager() override;

    property::Property<std::string>& pattern() { return m_pattern; }
    property::Property<std::string>& labelText() { return m_labelText; }
    property::Property<std::string>& lastAppliedPattern() { return m_lastAppliedPattern; }
    property::Property<bool>& selectionChanged() { return m_selectionChanged; }

    boost::shared_ptr<property::RelevanceInterface const> relevance() const override;

    /// As relevance(), or while what was applied last is another option (0: the empty pattern of
    /// Clear, which leaves nothing to apply): a pattern without a name like it may be a group's.
    boost::shared_ptr<property::RelevanceInterface const> relevanceOf(int option) const;

    /// Notes that the pattern, as it is now, has been applied with an option.
    void noteApplied(int option);

private:
    property::Property<std::string> m_pattern;
    property::Property<std::string> m_labelText;
    property::Property<std::string> m_lastAppliedPattern;
    property::Property<int> m_lastAppliedOption;
    property::Property<bool> m_selectionChanged;
    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
};

} // namespace corvala::sdk::ui::propertymanager
