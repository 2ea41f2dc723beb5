// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>

#include <QObject>
#include <QPointer>

#include <string>

class QLineEdit;

namespace corvala::propertybindings {

/// A line edit shows the text (UTF-8) of a property, and the property follows what is typed. The
/// property must outlive the binding; the line edit may go first.
class LineEditPropertyBinding
{
public:
    LineEditPropertyBinding(QLineEdit* lineEdit, property::Property<std::string>& text);
    ~LineEditPropertyBinding();
    LineEditPropertyBinding(const LineEditPropertyBinding&) = delete;
    LineEditPropertyBinding& operator=(const LineEditPropertyBinding&) = delete;

private:
    void showText();

    QPointer<QLineEdit> m_lineEdit;
    property::Property<std::string>& m_text;
    QMetaObject::Connection m_edited;
    boost::signals2::scoped_connection m_changed;
};

} // namespace corvala::propertybindings
