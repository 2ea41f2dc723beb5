// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program_stage.h"

#include "app/data_adding.h"
#include "app/data_opening.h"
#include "app/main_window.h"

namespace corvala::app {

QWidget& ProgramStage::window()
{
    return m_window;
}

QString ProgramStage::openFiles(const host::DataOrigin& origin)
{
    QString problem;
    const host::io::ReadRequest request = requestOf(origin, problem);
    if (!problem.isEmpty())
        return problem;
    return openAndWait(request).error;
}

host::Outcome ProgramStage::add(const host::AddData& addition)
{
    return addToFrame(addition);
}

std::shared_ptr<host::DataSet> ProgramStage::readData(const host::DataOrigin& origin,
                                                      QString& problem)
{
    return readAndWait(origin, problem);
}

QString ProgramStage::saveCanvas(const QString& file)
{
    return m_window.saveCanvas(file);
}

} // namespace corvala::app
