// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>
#include <sdk/propertymanager/properties_manager_abstract.h>

#include <string>

namespace corvala::sdk::ui::propertymanager {

/// The state of the editor of a line-map name. Relevant while a token is chosen for insertion.
class DynamicLineMapTextEditPropertiesManager
    : public corvala::propertymanager::PropertiesManagerAbstract
{
public:
    explicit DynamicLineMapTextEditPropertiesManager(std::string text);
    ~DynamicLineMapTextEditPropertiesManager() override;

    property::Property<std::string>& text() { return m_text; } ///< the name as stored, UTF-8
    property::Property<bool>& tokenChosen() { return m_tokenChosen; }

    boost::shared_ptr<property::RelevanceInterface const> relevance() const override;

private:
    property::Property<std::string> m_text;
    property::Property<bool> m_tokenChosen;
    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
};

} // namespace corvala::sdk::ui::propertymanager
