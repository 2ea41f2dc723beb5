// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"

#include <QStringList>

/// Events of the document as texts: "7:FieldMap" for style, else the code.
class EventLog
{
public:
    EventLog()
        : m_connection(corvala::host::Document::instance().events().connect(
            [this](const corvala::host::StateEvent& event) { note(event); }))
    {
    }

    /// What came since the last call, such as "7:FieldMap 44".
    QString take()
    {
        const QString text = m_texts.join(QLatin1Char(' '));
        m_texts.clear();
        return text;
    }
    const corvala::host::StateEvent& lastStyle() const { return m_style; }

private:
    void note(const corvala::host::StateEvent& event)
    {
        if (event.code == StateCode_Style)
            m_style = event;
        QString text = QString::number(event.code);
        if (!event.parameters.empty())
            text += QLatin1Char(':') + QString::fromStdString(event.parameters.front());
        m_texts << text;
    }

    QStringList m_texts;
    corvala::host::StateEvent m_style;
    boost::signals2::scoped_connection m_connection;
};
