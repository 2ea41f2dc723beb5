// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>

#include <QPointer>

#include <string>

class QLabel;

namespace corvala::propertybindings {

/// A label shows the text (UTF-8) of a property. The property must outlive the binding; the label
/// may go first.
class LabelPropertyBinding
{
public:
    LabelPropertyBinding(QLabel* label, property::Property<std::string>& text);

private:
    void showText();

    QPointer<QLabel> m_label;
    const property::Property<std::string>& m_text;
    boost::signals2::scoped_connection m_connection;
};

} // namespace corvala::propertybindings
