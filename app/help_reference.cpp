// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/help_reference.h"

#include <QVariant>
#include <QWidget>

namespace corvala::app {

static constexpr char kProperty[] = "helpReference";

void setHelpReference(QWidget& widget, const QString& reference)
{
    widget.setProperty(kProperty, reference);
}

QString helpReferenceOf(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QString reference = widget->property(kProperty).toString();
        if (!reference.isEmpty())
            return reference;
    }
    return QStringLiteral("index.html");
}

} // namespace corvala::app
