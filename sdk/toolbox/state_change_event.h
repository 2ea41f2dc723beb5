// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <string>

namespace corvala::toolbox {

/// A change of the document, delivered after it is visible.
class StateChangeEventInterface
{
public:
    virtual ~StateChangeEventInterface() = default;
    virtual int stateChange() const = 0; ///< StateCode_e
    virtual bool hasStyleParams() const = 0;
    /// Name number 1 up of the changed style path; an empty text beyond it.
    virtual std::string styleParam(int number) const = 0;
};

} // namespace corvala::toolbox
