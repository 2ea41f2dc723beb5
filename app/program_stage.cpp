// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/program_stage.h"

#include "app/data_opening.h"
#include "app/main_window.h"

namespace corvala::app {

QWidget& ProgramStage::window()
{
    return m_window;
}

QString ProgramStage::openFiles(const QStringList& files)
{
    host::io::ReadRequest request;
    request.files = files;
    return openAndWait(request).error;
}

QImage ProgramStage::canvasImage(QString* error)
{
    return m_window.canvasImage(error);
}

} // namespace corvala::app
