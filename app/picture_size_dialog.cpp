// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_size_dialog.h"

#include "app/help_reference.h"
#include "app/picture_output.h"
#include "app/user_settings.h"
#include "sdk/common_ui/number_field.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace corvala::app {

static const char* const kWidthKey = "picture/width"; // millimetres
static const char* const kHeightKey = "picture/height";
static const char* const kUnitKey = "picture/unit";
static const char* const kResolutionKey = "picture/resolution";
static const char* const kTransparentKey = "picture/transparent";

static double remembered(const char* key, double usual)
{
    bool isNumber = false;
    const double number = userSettings().value(QLatin1String(key)).toDouble(&isNumber);
    return isNumber ? number : usual;
}

ui::NumberField* PictureSizeDialog::makeField(const char* key)
{
    auto* field = new ui::NumberField(ui::NumberField::kSignificantDigits);
    field->setObjectName(QLatin1String(key));
    connect(field->findChild<QLineEdit*>(), &QLineEdit::textChanged, this,
            &PictureSizeDialog::showOtherUnit);
    return field;
}

PictureSizeDialog::PictureSizeDialog(const QString& file, QWidget* parent)
    : QDialog(parent)
    , m_file(file)
{
    setWindowTitle(tr("Size of the Picture"));
    setHelpReference(*this, QStringLiteral("documents.html#pictures"));
    makeFields();
    const plot::PictureSize usual;
    m_resolution->setNumber(remembered(kResolutionKey, usual.dotsPerInch));
    m_units->setCurrentIndex(remembered(kUnitKey, Millimetres) == Pixels ? Pixels : Millimetres);
    m_unit = static_cast<Unit>(m_units->currentIndex());
    setSize({{remembered(kWidthKey, usual.millimetres.width()),
              remembered(kHeightKey, usual.millimetres.height())},
             m_resolution->number().value_or(usual.dotsPerInch)});
    connect(m_units, QOverload<int>::of(&QComboBox::activated), this,
            [this](int unit) { chooseUnit(static_cast<Unit>(unit)); });
}

void PictureSizeDialog::makeFields()
{
    m_width = makeField(kWidthKey);
    m_height = makeField(kHeightKey);
    m_units = new QComboBox;
    m_units->setObjectName(QLatin1String(kUnitKey));
    m_units->addItems({tr("Millimetres"), tr("Pixels")});
    m_resolution = makeField(kResolutionKey);
    m_resolution->setLimits(plot::kLowestResolution, plot::kHighestResolution);
    m_resolution->setSingleStep(50.0);
    m_resolution->setToolTip(tr("Pixels of pictures, also of a field plot on a page"));
    m_transparent = new QCheckBox(tr("&Transparent background"));
    m_transparent->setObjectName(QLatin1String(kTransparentKey));
    m_transparent->setEnabled(canBeTransparent(m_file));
    m_transparent->setChecked(m_transparent->isEnabled() && remembered(kTransparentKey, 0) != 0);
    m_other = new QLabel;
    m_other->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PictureSizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PictureSizeDialog::reject);
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Width:"), m_width);
    form->addRow(tr("&Height:"), m_height);
    form->addRow(tr("&Unit:"), m_units);
    form->addRow(tr("&Resolution [dpi]:"), m_resolution);
    form->addRow(m_transparent);
    form->addRow(m_other);
    form->addRow(buttons);
    m_save = buttons->button(QDialogButtonBox::Save);
}

plot::PictureSize PictureSizeDialog::chosenSize() const
{
    const QSizeF size(m_width->number().value_or(0.0), m_height->number().value_or(0.0));
    const double dots = m_resolution->number().value_or(plot::PictureSize().dotsPerInch);
    return m_unit == Pixels ? plot::PictureSize::ofPixels(size, dots)
                            : plot::PictureSize {size, dots};
}

plot::Paper PictureSizeDialog::chosenPaper() const
{
    return m_transparent->isChecked() ? plot::Paper::Transparent : plot::Paper::White;
}

/// The picture stays as large as it is.
void PictureSizeDialog::chooseUnit(Unit unit)
{
    const plot::PictureSize size = chosenSize();
    m_unit = unit;
    setSize(size);
}

/// Of a picture, in the unit.
double PictureSizeDialog::largestSide() const
{
    constexpr double kLargestSide = 2000.0; // millimetres
    return m_unit == Pixels ? plot::kLargestImage : kLargestSide;
}

QString PictureSizeDialog::limits() const
{
    const QString text = m_unit == Pixels
        ? tr("A side may have 1 to %1 pixels, and the resolution may be %2 to %3 dpi")
        : tr("A side may have 1 to %1 mm, and the resolution may be %2 to %3 dpi");
    return text.arg(largestSide()).arg(plot::kLowestResolution).arg(plot::kHighestResolution);
}

/// Out of the range of its field, a length counts as the nearest.
void PictureSizeDialog::setSize(const plot::PictureSize& size)
{
    const QSizeF shown = m_unit == Pixels ? QSizeF(size.pixels()) : size.millimetres;
    const double largest = largestSide();
    const std::pair<ui::NumberField*, double> fields[] = {{m_width, shown.width()},
                                                          {m_height, shown.height()}};
    for (const auto& [field, length] : fields) {
        field->setLimits(1.0, largest);
        field->setNumber(std::clamp(length, 1.0, largest));
    }
    showOtherUnit();
}

void PictureSizeDialog::showOtherUnit()
{
    if (!m_save)
        return; // the fields are being made
    const plot::PictureSize size = chosenSize();
    const QSize pixels = size.pixels();
    const bool areNumbers = m_width->number() && m_height->number() && m_resolution->number();
    const QString problem = areNumbers ? pictureSizeProblem(m_file, size) : limits();
    const QString other = m_unit == Pixels
        ? tr("%1 x %2 mm")
              .arg(size.millimetres.width(), 0, 'f', 1)
              .arg(size.millimetres.height(), 0, 'f', 1)
        : tr("%1 x %2 pixels").arg(pixels.width()).arg(pixels.height());
    m_other->setText(problem.isEmpty() ? other : problem);
    m_save->setEnabled(problem.isEmpty());
}

void PictureSizeDialog::accept()
{
    QSettings settings = userSettings();
    const plot::PictureSize size = chosenSize();
    settings.setValue(QLatin1String(kWidthKey), size.millimetres.width());
    settings.setValue(QLatin1String(kHeightKey), size.millimetres.height());
    settings.setValue(QLatin1String(kUnitKey), int(m_unit));
    settings.setValue(QLatin1String(kResolutionKey), size.dotsPerInch);
    if (m_transparent->isEnabled())
        settings.setValue(QLatin1String(kTransparentKey), m_transparent->isChecked() ? 1 : 0);
    QDialog::accept();
}

} // namespace corvala::app
