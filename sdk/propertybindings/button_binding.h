// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>

#include <QObject>
#include <QPointer>

#include <boost/shared_ptr.hpp>

class QAbstractButton;

namespace corvala::propertybindings {

/// A button runs a command when it is clicked, and is enabled while a relevance holds. The button
/// may go before the binding.
class ButtonBinding
{
public:
    /// Without a relevance the button's enabled state is left alone.
    ButtonBinding(QAbstractButton* button, boost::function<void()> command,
                  boost::shared_ptr<property::RelevanceInterface const> relevance = {});
    ~ButtonBinding();
    ButtonBinding(const ButtonBinding&) = delete;
    ButtonBinding& operator=(const ButtonBinding&) = delete;

private:
    void updateEnabled();

    QPointer<QAbstractButton> m_button;
    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
    QMetaObject::Connection m_clicked;
    boost::signals2::scoped_connection m_changed;
};

} // namespace corvala::propertybindings
