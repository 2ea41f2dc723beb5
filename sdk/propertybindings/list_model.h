// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>
#include <boost/signals2/signal.hpp>

#include <utility>

namespace corvala::propertybindings {

/// A list of values that tells when it changes.
template<class T>
class ListModelInterface
{
public:
    virtual ~ListModelInterface() = default;

    virtual int size() const = 0;
    virtual T at(int index) const = 0; ///< `index` from 0, below size()

    /// `slot` runs after the values changed, until the connection is cut.
    virtual boost::signals2::connection
    connectValueListChanged(boost::function<void()> slot) const = 0;
};

/// Base of list models: sends the signal for them.
template<class T>
class ListModelAbstract : public ListModelInterface<T>
{
public:
    ListModelAbstract() = default;
    ListModelAbstract(const ListModelAbstract&) = delete;
    ListModelAbstract& operator=(const ListModelAbstract&) = delete;

    boost::signals2::connection connectValueListChanged(boost::function<void()> slot) const override
    {
        return m_valueListChanged.connect(std::move(slot));
    }

protected:
    void notifyValueListChanged() const { m_valueListChanged(); }

private:
    mutable boost::signals2::signal<void()> m_valueListChanged;
};

} // namespace corvala::propertybindings
