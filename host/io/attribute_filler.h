// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vtkDataArray.h>
#include <vtkFieldData.h>

#include <string>
#include <unordered_set>

namespace corvala::host::io {

/// While it lives, a data set does not look for its ghost levels by name whenever an array of its
/// attributes changes; it does so once in the end.
class QuietAttributes
{
public:
    explicit QuietAttributes(vtkFieldData& attributes); ///< which must live as long
    ~QuietAttributes();
    QuietAttributes(const QuietAttributes&) = delete;
    QuietAttributes& operator=(const QuietAttributes&) = delete;

private:
    vtkFieldData& m_attributes;
    unsigned long m_observer;
};

/// Adds arrays to attributes that are empty at first. VTK compares the name of an array that is
/// added with those of all others, which takes seconds where there are ten thousand.
class AttributeFiller
{
public:
    /// `count` is about how many arrays will be added. The attributes must live as long.
    AttributeFiller(vtkFieldData& attributes, int count);

    /// Names the array; one that has the name already is replaced.
    void add(vtkDataArray& array, const std::string& name);

private:
    vtkFieldData& m_attributes;
    QuietAttributes m_quiet;
    std::unordered_set<std::string> m_names;
};

} // namespace corvala::host::io
