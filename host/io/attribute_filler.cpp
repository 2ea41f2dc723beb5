// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/attribute_filler.h"

#include <vtkCallbackCommand.h>
#include <vtkNew.h>

namespace corvala::host::io {

QuietAttributes::QuietAttributes(vtkFieldData& attributes)
    : m_attributes(attributes)
{
    constexpr float kFirst = 1; // before those of data sets, which it keeps from being told
    const vtkNew<vtkCallbackCommand> command;
    command->SetCallback([](vtkObject*, unsigned long, void*, void*) {});
    command->SetAbortFlagOnExecute(1);
    m_observer = attributes.AddObserver(vtkCommand::ModifiedEvent, command, kFirst);
}

QuietAttributes::~QuietAttributes()
{
    m_attributes.RemoveObserver(m_observer);
    m_attributes.Modified();
}

AttributeFiller::AttributeFiller(vtkFieldData& attributes, int count)
    : m_attributes(attributes)
    , m_quiet(attributes)
{
    if (count > 0) // each array beyond them has the others moved
        attributes.AllocateArrays(count);
}

void AttributeFiller::add(vtkDataArray& array, const std::string& name)
{
    const bool isNew = m_names.insert(name).second;
    array.SetName(isNew ? nullptr : name.c_str()); // what has no name is not looked for
    m_attributes.AddArray(&array);
    array.SetName(name.c_str());
}

} // namespace corvala::host::io
