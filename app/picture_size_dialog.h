// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace corvala::ui {
class NumberField;
}

namespace corvala::app {

/// Asks how large a picture is to be, and on what; begins with what was accepted last, also in
/// former runs.
class PictureSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /// `file` is the one to be written.
    explicit PictureSizeDialog(const QString& file, QWidget* parent = nullptr);

    plot::PictureSize chosenSize() const;
    plot::Paper chosenPaper() const;
    /// Remembers what was chosen.
    void accept() override;

private:
    enum Unit { Millimetres, Pixels };

    ui::NumberField* makeField(const char* key);
    void makeFields();
    void chooseUnit(Unit unit);
    void setSize(const plot::PictureSize& size);
    void showOtherUnit();
    double largestSide() const;
    QString limits() const; ///< of what can be chosen, for the user

    QString m_file;
    Unit m_unit = Millimetres; ///< of width and height
    // Owned by the dialog.
    ui::NumberField* m_width = nullptr;
    ui::NumberField* m_height = nullptr;
    QComboBox* m_units = nullptr;
    ui::NumberField* m_resolution = nullptr; ///< dots per inch
    QCheckBox* m_transparent = nullptr;
    QLabel* m_other = nullptr; ///< the size in the other unit, or what is wrong with it
    QPushButton* m_save = nullptr;
};

} // namespace corvala::app
