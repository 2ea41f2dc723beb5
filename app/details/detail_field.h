// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"

#include <QIcon>
#include <QObject>

#include <optional>

class QWidget;

namespace corvala::app {

/// Shows one value of the active frame in a widget, and writes what the user makes of it.
class DetailField : public QObject
{
    Q_OBJECT

public:
    /// The field of a value, as its type wants it; its widget becomes a child of `parent`, and the
    /// field one of the widget.
    static DetailField* make(style::Key key, QWidget& parent);
    ~DetailField() override;

    QWidget& widget() const { return *m_widget; }
    style::Key key() const { return m_key; }

    /// Which one of an indexed value is meant, from 1.
    virtual void setIndex(int index) { m_index = index; }
    /// Shows what the frame says. What is being typed stays, and what was typed and does not fit.
    virtual void refresh(const host::Frame& frame) = 0;
    /// Shows a number in place of what the frame says, which is not in force.
    virtual void showInstead(double) { }
    /// Gives the frame the value.
    void write(const host::StyleInput& value);
    void writeDefault();
    bool hasDefault(const host::Frame& frame) const;

Q_SIGNALS:
    /// The user gave the value, which is written.
    void written();

protected:
    DetailField(style::Key key, QWidget* widget);

    const style::Entry& entry() const { return style::entryOf(m_key); }
    host::StyleOutput present(const host::Frame& frame) const;
    int index() const { return m_index; }

private:
    QWidget* m_widget; // owns this
    style::Key m_key;
    int m_index = -1;
};

/// A picture of this size with the colours of a map from left to right.
QIcon colorMapIcon(ColorMap_e map, const QSize& size);

} // namespace corvala::app
