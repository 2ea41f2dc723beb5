// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common_ui/number_field.h"

#include "sdk/common_ui/number_text.h"
#include "sdk/common_ui/problem_mark.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvala::ui {

static constexpr int kMostDecimals = 15;
static constexpr int kShownDigits = 7; ///< of a number of any magnitude

NumberField::NumberField(int decimals, QWidget* parent)
    : QDoubleSpinBox(parent)
    , m_decimals(decimals)
{
    constexpr double kLargest = std::numeric_limits<double>::max();
    setDecimals(decimals == 0 ? 0 : kMostDecimals); // of the base class, which rounds to them
    QDoubleSpinBox::setRange(-kLargest, kLargest); // that it would correct texts to
    setKeyboardTracking(false);
    connect(lineEdit(), &QLineEdit::textChanged, this, &NumberField::textChanged);
}

void NumberField::setLimits(double lowest, double highest)
{
    m_lowest = lowest;
    m_highest = highest;
    textChanged();
}

void NumberField::setNumber(double number)
{
    setValue(number);
    m_set = number;
    m_setText = textFromValue(number);
    lineEdit()->setText(m_setText);
    textChanged();
}

std::optional<double> NumberField::number() const
{
    const QString text = lineEdit()->text();
    const std::optional<double> number = text == m_setText ? m_set : read(text);
    return number && *number >= m_lowest && *number <= m_highest ? number : std::nullopt;
}

std::optional<double> NumberField::read(const QString& text) const
{
    const std::optional<double> number = numberFrom(text, locale());
    const bool isWhole = number && *number == std::floor(*number);
    return m_decimals == 0 && !isWhole ? std::nullopt : number;
}

QString NumberField::rangeText() const
{
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const auto shown = [&plain](double limit) { return plain.toString(limit, 'g', 10); };
    if (std::isinf(m_lowest) && std::isinf(m_highest))
        return tr("a number");
    return tr("%1 to %2").arg(shown(m_lowest), shown(m_highest));
}

QValidator::State NumberField::validate(QString& text, int&) const
{
    const std::optional<double> number = text == m_setText ? m_set : read(text);
    return number && *number >= m_lowest && *number <= m_highest ? QValidator::Acceptable
                                                                 : QValidator::Intermediate;
}

double NumberField::valueFromText(const QString& text) const
{
    return read(text).value_or(value());
}

QString NumberField::textFromValue(double value) const
{
    QLocale plain = locale();
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString rounded = m_decimals == kSignificantDigits
        ? plain.toString(value, 'g', kShownDigits)
        : plain.toString(value, 'f', m_decimals);
    const std::optional<double> shown = numberFrom(rounded, plain);
    const bool isInside = value >= m_lowest && value <= m_highest;
    const bool looksOutside = shown && (*shown < m_lowest || *shown > m_highest);
    return isInside && looksOutside ? plain.toString(value, 'g', kMostDecimals) : rounded;
}

void NumberField::fixup(QString&) const { }

/// A number of any magnitude moves in its second digit.
double NumberField::stepFrom(double number) const
{
    if (m_decimals != kSignificantDigits)
        return singleStep();
    return number == 0.0 ? 0.1 : std::pow(10.0, std::floor(std::log10(std::abs(number))) - 1.0);
}

void NumberField::stepBy(int steps)
{
    const double from = number().value_or(m_set);
    setNumber(std::clamp(from + steps * stepFrom(from), m_lowest, m_highest));
    selectAll();
}

/// The base class replaces a text that does not fit by the number before. What is selected stays
/// so.
void NumberField::keep(const QString& text)
{
    if (lineEdit()->text() != text)
        lineEdit()->setText(text);
}

void NumberField::focusOutEvent(QFocusEvent* event)
{
    const QString text = lineEdit()->text();
    QDoubleSpinBox::focusOutEvent(event);
    keep(text);
}

void NumberField::hideEvent(QHideEvent* event)
{
    const QString text = lineEdit()->text();
    QDoubleSpinBox::hideEvent(event);
    keep(text);
}

void NumberField::showEvent(QShowEvent* event)
{
    const QString text = lineEdit()->text();
    QDoubleSpinBox::showEvent(event);
    keep(text);
}

/// Return is for the window, which accepts the number or does not.
void NumberField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();
    else
        QDoubleSpinBox::keyPressEvent(event);
}

void NumberField::textChanged()
{
    const bool fits = number().has_value();
    if (fits == m_fits)
        return;
    m_fits = fits;
    markProblem(*this, fits ? QString() : rangeText());
    Q_EMIT fitChanged(fits);
}

} // namespace corvala::ui
