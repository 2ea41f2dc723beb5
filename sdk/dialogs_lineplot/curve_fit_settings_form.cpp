// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/curve_fit_settings_form.h"

#include <sdk/common_ui/combo_box_auto_filter.h>
#include <sdk/common_ui/number_field.h>
#include <sdk/common_ui/number_text.h>
#include <sdk/common_ui/problem_mark.h>
#include <sdk/private/numbered_name_list_model.h>
#include <sdk/toolbox/style_value.h>
#include <sdk/uicommon/style_writing.h>

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

namespace corvala::dialogs::lineplot {

static constexpr int kHighestOrder = 10;

static bool isFit(CurveType_e type)
{
    return type == CurveType_PolynomialFit || type == CurveType_ExponentialFit
        || type == CurveType_PowerFit || type == CurveType_Extended;
}

static bool isSpline(CurveType_e type)
{
    return type == CurveType_Spline || type == CurveType_ParametricSpline;
}

static constexpr const auto& kCurves = style::lineMap.curves;

template<class T>
static T setting(style::Key key, CvlInt64 lineMap)
{
    return toolbox::StyleValue(key).read<T>(lineMap).value_or(T());
}

static void setNumber(QLineEdit& edit, double number)
{
    edit.setText(QString::number(number, 'g', QLocale::FloatingPointShortest));
}

static double number(const QLineEdit& edit)
{
    return ui::numberFrom(edit.text()).value_or(0.0);
}

CurveFitSettingsForm::CurveFitSettingsForm(QWidget* parent)
    : QWidget(parent)
    , m_variables(new common::NumberedNameListModel(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeOrderRow());
    layout->addWidget(makeSmoothingRow());
    layout->addWidget(makeRangeGroup());
    layout->addWidget(makeWeightGroup());
    layout->addWidget(makeClampGroup());
}

QWidget* CurveFitSettingsForm::makeOrderRow()
{
    m_orderRow = new QWidget(this);
    auto* form = new QFormLayout(m_orderRow);
    form->setContentsMargins(0, 0, 0, 0);
    m_order = new QSpinBox(m_orderRow);
    m_order->setRange(1, kHighestOrder);
    form->addRow(tr("&Polynomial order:"), m_order);
    return m_orderRow;
}

QWidget* CurveFitSettingsForm::makeSmoothingRow()
{
    constexpr int kDecimals = 6; // close to 1 the last ones matter
    constexpr double kStep = 0.05;
    m_smoothingRow = new QWidget(this);
    auto* form = new QFormLayout(m_smoothingRow);
    form->setContentsMargins(0, 0, 0, 0);
    m_smoothing = new ui::NumberField(kDecimals, m_smoothingRow);
    m_smoothing->setLimits(0.0, 1.0);
    m_smoothing->setSingleStep(kStep);
    m_smoothing->setToolTip(tr("0 is a straight line, 1 runs through all points"));
    connect(m_smoothing, &ui::NumberField::fitChanged, this, &CurveFitSettingsForm::changed);
    form->addRow(tr("C&loseness:"), m_smoothing);
    return m_smoothingRow;
}

static QGroupBox* makeSwitchedGroup(const QString& title, CurveFitSettingsForm* parent)
{
    auto* group = new QGroupBox(title, parent);
    group->setCheckable(true);
    group->setLayout(new QFormLayout);
    QObject::connect(group, &QGroupBox::toggled, parent, &CurveFitSettingsForm::changed);
    return group;
}

QGroupBox* CurveFitSettingsForm::makeRangeGroup()
{
    m_range = makeSwitchedGroup(tr("Use points in a &range only"), this);
    m_rangeBegin = addNumber(*m_range, tr("&From:"));
    m_rangeEnd = addNumber(*m_range, tr("&To:"));
    return m_range;
}

QGroupBox* CurveFitSettingsForm::makeWeightGroup()
{
    m_weight = makeSwitchedGroup(tr("Use a &weighting variable"), this);
    m_weightVariable = new ui::ComboBoxAutoFilter(m_weight);
    m_weightVariable->setListModel(m_variables);
    connect(m_weightVariable, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CurveFitSettingsForm::changed);
    static_cast<QFormLayout*>(m_weight->layout())->addRow(tr("&Variable:"), m_weightVariable);
    return m_weight;
}

QGroupBox* CurveFitSettingsForm::makeClampGroup()
{
    m_clamp = makeSwitchedGroup(tr("&Clamp the ends"), this);
    m_startDerivative = addNumber(*m_clamp, tr("Derivative at &start:"));
    m_endDerivative = addNumber(*m_clamp, tr("Derivative at &end:"));
    return m_clamp;
}

QLineEdit* CurveFitSettingsForm::addNumber(QGroupBox& group, const QString& label)
{
    auto* edit = new QLineEdit(&group);
    edit->setValidator(new ui::NumberValidator(edit));
    connect(edit, &QLineEdit::textChanged, edit, [edit] {
        ui::markProblem(*edit, edit->hasAcceptableInput() ? QString() : tr("a number"));
    });
    connect(edit, &QLineEdit::textChanged, this, &CurveFitSettingsForm::changed);
    static_cast<QFormLayout*>(group.layout())->addRow(label, edit);
    return edit;
}

void CurveFitSettingsForm::read(const propertybindings::CurveFitInfo& fit, CvlInt64 lineMap)
{
    const CurveType_e type = fit.type();
    m_orderRow->setVisible(type == CurveType_PolynomialFit);
    m_smoothingRow->setVisible(type == CurveType_Extended
                               && fit.extendedFit() == ExtendedFit_SmoothingSpline);
    m_range->setVisible(isFit(type));
    m_weight->setVisible(isFit(type));
    m_clamp->setVisible(isSpline(type));

    m_order->setValue(setting<int>(kCurves.polyOrder, lineMap));
    m_smoothing->setNumber(setting<double>(kCurves.smoothing, lineMap));
    m_range->setChecked(setting<bool>(kCurves.useIndVarRange, lineMap));
    setNumber(*m_rangeBegin, setting<double>(kCurves.indVarMin, lineMap));
    setNumber(*m_rangeEnd, setting<double>(kCurves.indVarMax, lineMap));
    m_weight->setChecked(setting<bool>(kCurves.useWeightVar, lineMap));
    m_variables->listVariables();
    m_weightVariable->setCurrentIndex(
        m_variables->rowOf(setting<CvlInt64>(kCurves.weightVar, lineMap)));
    m_clamp->setChecked(setting<bool>(kCurves.clampSpline, lineMap));
    setNumber(*m_startDerivative, setting<double>(kCurves.splineDerivativeAtStart, lineMap));
    setNumber(*m_endDerivative, setting<double>(kCurves.splineDerivativeAtEnd, lineMap));
}

bool CurveFitSettingsForm::isAcceptable() const
{
    const auto isUsed = [](const QGroupBox* group) {
        return !group->isHidden() && group->isChecked();
    };
    if (!m_smoothingRow->isHidden() && !m_smoothing->number())
        return false;
    if (isUsed(m_range)
        && (!m_rangeBegin->hasAcceptableInput() || !m_rangeEnd->hasAcceptableInput()
            || number(*m_rangeEnd) < number(*m_rangeBegin)))
        return false;
    if (isUsed(m_weight) && m_weightVariable->currentIndex() < 0)
        return false;
    return !isUsed(m_clamp)
        || (m_startDerivative->hasAcceptableInput() && m_endDerivative->hasAcceptableInput());
}

void CurveFitSettingsForm::write(const toolbox::Set& lineMaps) const
{
    const auto assign = [&lineMaps](style::Key key, double value) {
        sdk::ui::writeStyle(key, &lineMaps, value);
    };
    // What a switch leaves without effect stays as each line map has it.
    const auto assignSwitch = [&assign](style::SwitchKey key, const QGroupBox* group) {
        if (group->isHidden())
            return false;
        assign(key, group->isChecked() ? 1.0 : 0.0);
        return group->isChecked();
    };
    if (!m_orderRow->isHidden())
        assign(kCurves.polyOrder, m_order->value());
    if (!m_smoothingRow->isHidden())
        assign(kCurves.smoothing, m_smoothing->number().value_or(0.0));
    if (assignSwitch(kCurves.useIndVarRange, m_range)) {
        assign(kCurves.indVarMin, number(*m_rangeBegin));
        assign(kCurves.indVarMax, number(*m_rangeEnd));
    }
    if (assignSwitch(kCurves.useWeightVar, m_weight))
        assign(kCurves.weightVar,
               static_cast<double>(m_variables->numberAt(m_weightVariable->currentIndex())));
    if (assignSwitch(kCurves.clampSpline, m_clamp)) {
        assign(kCurves.splineDerivativeAtStart, number(*m_startDerivative));
        assign(kCurves.splineDerivativeAtEnd, number(*m_endDerivative));
    }
}

} // namespace corvala::dialogs::lineplot
