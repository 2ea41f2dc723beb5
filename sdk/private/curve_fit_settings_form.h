// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>
#include <sdk/propertybindings/curve_fit_info.h>
#include <sdk/toolbox/set.h>

#include <QWidget>

#include <optional>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QSpinBox;

namespace corvala::dialogs::common {
class NumberedNameListModel;
}
namespace corvala::ui {
class ComboBoxAutoFilter;
class NumberField;
}

namespace corvala::dialogs::lineplot {

/// The fields for the settings of a curve fit: those that its type has are shown.
class CurveFitSettingsForm : public QWidget
{
    Q_OBJECT

public:
    explicit CurveFitSettingsForm(QWidget* parent);

    /// Shows the settings of a line map of the active frame, for that fit.
    void read(const propertybindings::CurveFitInfo& fit, CvlInt64 lineMap);

    /// Everything that would be written is complete, and the range does not end before it begins.
    bool isAcceptable() const;

    /// Gives the settings shown to line maps of the active frame.
    void write(const toolbox::Set& lineMaps) const;

Q_SIGNALS:
    void changed();

private:
    QWidget* makeOrderRow();
    QWidget* makeSmoothingRow();
    QGroupBox* makeRangeGroup();
    QGroupBox* makeWeightGroup();
    QGroupBox* makeClampGroup();
    QLineEdit* addNumber(QGroupBox& group, const QString& label);

    QWidget* m_orderRow;
    QSpinBox* m_order;
    QWidget* m_smoothingRow;
    ui::NumberField* m_smoothing;
    QGroupBox* m_range;
    QLineEdit* m_rangeBegin;
    QLineEdit* m_rangeEnd;
    QGroupBox* m_weight;
    common::NumberedNameListModel* m_variables;
    ui::ComboBoxAutoFilter* m_weightVariable;
    QGroupBox* m_clamp;
    QLineEdit* m_startDerivative;
    QLineEdit* m_endDerivative;
};

} // namespace corvala::dialogs::lineplot
