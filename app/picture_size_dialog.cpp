// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_size_dialog.h"

#include "app/help_reference.h"
#include "app/picture_output.h"
#include "app/user_settings.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace corvala::app {

static const char* const kWidthKey = "picture/width";
static const char* const kHeightKey = "picture/height";
static const char* const kResolutionKey = "picture/resolution";

/// A field for a number that is remembered; out of its range it counts as the nearest.
static QDoubleSpinBox* makeField(const char* key, double usual, double least, double most,
                                 int decimals, const QString& unit)
{
    auto* field = new QDoubleSpinBox;
    field->setRange(least, most);
    field->setDecimals(decimals);
    field->setSuffix(unit);
    field->setObjectName(QLatin1String(key));
    bool isNumber = false;
    const double remembered = userSettings().value(QLatin1String(key)).toDouble(&isNumber);
    field->setValue(isNumber ? remembered : usual);
    return field;
}

PictureSizeDialog::PictureSizeDialog(const QString& file, QWidget* parent)
    : QDialog(parent)
    , m_file(file)
    , m_pixels(new QLabel)
{
    constexpr double kLargestSide = 2000.0; // millimetres
    const plot::PictureSize usual;
    const QString millimetres = tr(" mm");
    m_width = makeField(kWidthKey, usual.millimetres.width(), 1.0, kLargestSide, 1, millimetres);
    m_height = makeField(kHeightKey, usual.millimetres.height(), 1.0, kLargestSide, 1, millimetres);
    m_resolution = makeField(kResolutionKey, usual.dotsPerInch, plot::kLowestResolution,
                             plot::kHighestResolution, 0, tr(" dpi"));
    m_resolution->setToolTip(tr("Pixels of pictures, also of a field plot on a page"));
    setWindowTitle(tr("Size of the Picture"));
    setHelpReference(*this, QStringLiteral("documents.html#pictures"));
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(tr("&Height:"), m_height);
    form->addRow(tr("&Resolution:"), m_resolution);
    form->addRow(m_pixels);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    m_save = buttons->button(QDialogButtonBox::Save);
    connect(buttons, &QDialogButtonBox::accepted, this, &PictureSizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PictureSizeDialog::reject);
    form->addRow(buttons);
    for (QDoubleSpinBox* const field : {m_width, m_height, m_resolution})
        connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                &PictureSizeDialog::showPixels);
    m_pixels->setWordWrap(true);
    showPixels();
}

plot::PictureSize PictureSizeDialog::chosenSize() const
{
    return {{m_width->value(), m_height->value()}, m_resolution->value()};
}

void PictureSizeDialog::showPixels()
{
    const QSize pixels = chosenSize().pixels();
    const QString problem = pictureSizeProblem(m_file, chosenSize());
    m_pixels->setText(problem.isEmpty()
                          ? tr("%1 x %2 pixels").arg(pixels.width()).arg(pixels.height())
                          : problem);
    m_save->setEnabled(problem.isEmpty());
}

void PictureSizeDialog::accept()
{
    QSettings settings = userSettings();
    for (const QDoubleSpinBox* const field : {m_width, m_height, m_resolution})
        settings.setValue(field->objectName(), field->value());
    QDialog::accept();
}

} // namespace corvala::app
