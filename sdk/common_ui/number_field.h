// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDoubleSpinBox>

#include <optional>

namespace corvala::ui {

/// A field for a number of a range. The decimal comma of the locale and the point are both read,
/// group separators never, so that no text is taken for another number than was meant. A text that
/// is no number of the range stays as it was typed and is marked; hasAcceptableInput() tells.
class NumberField : public QDoubleSpinBox
{
    Q_OBJECT
    // Those of the base class are rounded to the decimals that are shown.
    Q_PROPERTY(double minimum READ lowest)
    Q_PROPERTY(double maximum READ highest)
    Q_PROPERTY(int decimals READ shownDecimals)

public:
    /// In place of decimals, for numbers of any magnitude.
    static constexpr int kSignificantDigits = -1;

    /// `decimals` are shown, and more where they are needed to tell the number from the ends of the
    /// range; 0 takes whole numbers only.
    explicit NumberField(int decimals, QWidget* parent = nullptr);

    void setLimits(double lowest, double highest); ///< both included; infinite for none
    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }
    int shownDecimals() const { return m_decimals; }

    /// A number outside the limits is shown, and marked, as it is.
    void setNumber(double number);
    /// What was set, as long as nothing else was typed; nothing for a text that does not fit.
    std::optional<double> number() const;

    /// "0.01 to 100".
    QString rangeText() const;

    QValidator::State validate(QString& text, int& position) const override;
    double valueFromText(const QString& text) const override;
    QString textFromValue(double value) const override;
    void fixup(QString& text) const override; ///< leaves it
    void stepBy(int steps) override;

Q_SIGNALS:
    /// The text does fit now, or does not.
    void fitChanged(bool fits);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    std::optional<double> read(const QString& text) const;
    double stepFrom(double number) const;
    void keep(const QString& text);
    void textChanged();

    int m_decimals;
    double m_lowest = 0.0;
    double m_highest = 0.0;
    double m_set = 0.0;
    QString m_setText;
    bool m_fits = true;
};

} // namespace corvala::ui
