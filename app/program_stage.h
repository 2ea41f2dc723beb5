// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "play/stage.h"

namespace corvala::app {

class MainWindow;

/// Plays scripts in the program's own window.
class ProgramStage : public play::Stage
{
public:
    /// The window must outlive the stage.
    explicit ProgramStage(MainWindow& window)
        : m_window(window)
    {
    }

    QWidget& window() override;
    QString openFiles(const host::DataOrigin& origin) override;
    std::shared_ptr<host::DataSet> readData(const host::DataOrigin& origin,
                                            QString& problem) override;
    host::Outcome add(const host::AddData& addition) override;
    QString saveCanvas(const QString& file) override;

private:
    MainWindow& m_window;
};

} // namespace corvala::app
