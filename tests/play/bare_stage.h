// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/stage.h"

#include <QMainWindow>

namespace corvala::tests {

/// A stage without canvas and readers.
class BareStage : public play::Stage
{
public:
    BareStage() { m_window.show(); }

    QWidget& window() override { return m_window; }
    QString openFiles(const QStringList&) override
    {
        return QStringLiteral("this stage reads no files");
    }
    QImage canvasImage(QString* error) override
    {
        *error = QStringLiteral("this stage has no canvas");
        return {};
    }

private:
    QMainWindow m_window;
};

} // namespace corvala::tests
