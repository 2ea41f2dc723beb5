// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace corvala::toolbox {

/// A list of UTF-8 texts.
class StringList
{
public:
    void append(std::string text) { m_texts.push_back(std::move(text)); }
    std::size_t size() const { return m_texts.size(); }
    const std::string& at(std::size_t index) const { return m_texts.at(index); }
    std::string join(const std::string& separator) const;

private:
    std::vector<std::string> m_texts;
};

} // namespace corvala::toolbox
