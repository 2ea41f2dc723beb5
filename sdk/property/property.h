// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>
#include <boost/signals2/signal.hpp>

#include <utility>

namespace corvala::property {

/// What properties of every type share: the notice that the value changed.
class PropertyAbstract
{
public:
    PropertyAbstract() = default;
    PropertyAbstract(const PropertyAbstract&) = delete;
    PropertyAbstract& operator=(const PropertyAbstract&) = delete;
    virtual ~PropertyAbstract();

    /// `slot` runs after every change of the value, until the connection is cut.
    boost::signals2::connection connectChanged(boost::function<void()> slot) const
    {
        return m_changed.connect(std::move(slot));
    }

protected:
    void notifyChanged() const { m_changed(); }

private:
    mutable boost::signals2::signal<void()> m_changed;
};

/// A value that tells when it changes. T needs copying and ==.
template<class T>
class Property : public PropertyAbstract
{
public:
    explicit Property(T value = T())
        : m_value(std::move(value))
    {
    }

    const T& get() const { return m_value; }

    /// Setting the value that is there already notifies nobody.
    void set(T value)
    {
        if (m_value == value)
            return;
        m_value = std::move(value);
        notifyChanged();
    }

private:
    T m_value;
};

} // namespace corvala::property
