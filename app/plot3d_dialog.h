// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/io/data_reader.h"

#include <QDialog>

#include <vector>

class QComboBox;

namespace corvala::app {

/// Asks how Plot3D files are laid out; each property can be left to the reader to detect.
class Plot3DDialog : public QDialog
{
    Q_OBJECT

public:
    /// `detected` tells what the reader found; null when nothing was read yet.
    Plot3DDialog(const host::io::Plot3DLayout& present, const host::io::Plot3DLayout* detected,
                 QWidget* parent);

    host::io::Plot3DLayout chosenLayout() const;

private:
    std::vector<QComboBox*> m_choices; // not owned; one per property
};

} // namespace corvala::app
