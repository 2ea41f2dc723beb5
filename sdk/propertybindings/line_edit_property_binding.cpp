// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/line_edit_property_binding.h"

#include <QLineEdit>

namespace corvala::propertybindings {

LineEditPropertyBinding::LineEditPropertyBinding(QLineEdit* lineEdit,
                                                 property::Property<std::string>& text)
    : m_lineEdit(lineEdit)
    , m_text(text)
    , m_changed(text.connectChanged([this] { showText(); }))
{
    showText();
    m_edited = QObject::connect(lineEdit, &QLineEdit::textChanged, lineEdit,
                                [this](const QString& typed) { m_text.set(typed.toStdString()); });
}

LineEditPropertyBinding::~LineEditPropertyBinding()
{
    QObject::disconnect(m_edited);
}

void LineEditPropertyBinding::showText()
{
    // Setting a text moves the cursor to its end, also when it is the one that was just typed.
    const QString shown = QString::fromStdString(m_text.get());
    if (m_lineEdit && m_lineEdit->text() != shown)
        m_lineEdit->setText(shown);
}

} // namespace corvala::propertybindings
