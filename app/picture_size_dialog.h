// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture_size.h"

#include <QDialog>

class QDoubleSpinBox;
class QLabel;
class QPushButton;

namespace corvala::app {

/// Asks how large a picture is to be; begins with what was accepted last, also in former runs.
class PictureSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// `file` is the one to be written.
    explicit PictureSizeDialog(const QString& file, QWidget* parent = nullptr);

    plot::PictureSize chosenSize() const;
    /// Remembers the size.
    void accept() override;

private:
    void showPixels();

    QString m_file;
    // Owned by the dialog.
    QDoubleSpinBox* m_width; ///< millimetres
    QDoubleSpinBox* m_height; ///< millimetres
    QDoubleSpinBox* m_resolution; ///< dots per inch
    QLabel* m_pixels;
    QPushButton* m_save;
};

} // namespace corvala::app
