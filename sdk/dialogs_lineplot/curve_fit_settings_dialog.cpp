// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_lineplot/curve_fit_settings_dialog.h"

#include <sdk/base/cvl.h>
#include <sdk/private/curve_fit_settings_form.h>
#include <sdk/private/shared_instance.h>
#include <sdk/propertybindings/curve_fit_collection.h>
#include <sdk/propertybindings/curve_fit_report.h>
#include <sdk/signals/state_change_event_observable.h>
#include <sdk/uicommon/host_command_scope.h>
#include <sdk/uicommon/style_writing.h>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHideEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace corvala::dialogs::lineplot {

using propertybindings::CurveFitInfo;

/// The fit that all line maps of the active frame have; not valid when they differ, one does not
/// exist, or there are none.
static CurveFitInfo commonFit(const toolbox::Set& lineMaps)
{
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    const propertybindings::CurveFitCollection fits;
    const CurveFitInfo fit = fits.curveFitForLineMap(frame, lineMaps.next(0));
    const bool isCommon = std::all_of(lineMaps.begin(), lineMaps.end(), [&](CvlInt64 map) {
        return fits.curveFitForLineMap(frame, map) == fit;
    });
    return isCommon ? fit : CurveFitInfo();
}

static QString nameOf(CvlUniqueId frame, CvlInt64 lineMap)
{
    char* name = CvlUtilLineMapGetNameForFrame(frame, lineMap);
    const QString shown = QString::fromUtf8(name);
    CvlUtilStringDealloc(&name);
    return shown;
}

CurveFitSettingsDialog& CurveFitSettingsDialog::getInstance(QWidget* parent)
{
    static QPointer<CurveFitSettingsDialog> instance;
    return common::sharedInstance(instance, parent,
                                  [](QWidget* owner) { return new CurveFitSettingsDialog(owner); });
}

static constexpr int kReportColumns = 62;
static constexpr int kReportRows = 9;
static constexpr int kBetweenQuestions = 100; ///< milliseconds

CurveFitSettingsDialog::CurveFitSettingsDialog(QWidget* parent)
    : QDialog(parent)
    , m_lineMapsLabel(new QLabel(this))
    , m_form(new CurveFitSettingsForm(this))
    , m_report(new QPlainTextEdit(this))
    , m_askAgain(new QTimer(this))
{
    setWindowTitle(tr("Curve Fit Settings"));
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply
                                             | QDialogButtonBox::Cancel,
                                         Qt::Horizontal, this);
    m_okButton = buttons->button(QDialogButtonBox::Ok);
    m_okButton->setDefault(true);
    m_applyButton = buttons->button(QDialogButtonBox::Apply);
    m_lineMapsLabel->setTextFormat(Qt::PlainText);
    m_report->setReadOnly(true);
    m_report->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_report->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_report->setAccessibleName(tr("Result of the fit"));
    m_report->setMinimumSize(m_report->fontMetrics().averageCharWidth() * kReportColumns,
                             m_report->fontMetrics().lineSpacing() * kReportRows);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_lineMapsLabel);
    layout->addWidget(m_form);
    layout->addWidget(m_report);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize); // follows the fields that are shown

    m_askAgain->setSingleShot(true);
    m_askAgain->setInterval(kBetweenQuestions);
    connect(m_askAgain, &QTimer::timeout, this, &CurveFitSettingsDialog::showReport);
    connect(m_form, &CurveFitSettingsForm::changed, this, [this] {
        m_okButton->setEnabled(m_form->isAcceptable());
        m_applyButton->setEnabled(m_form->isAcceptable());
    });
    connect(m_applyButton, &QPushButton::clicked, this, &CurveFitSettingsDialog::apply);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void CurveFitSettingsDialog::launch(CvlUniqueId frame, toolbox::Set lineMaps)
{
    const CurveFitInfo fit = commonFit(lineMaps);
    if (frame != CvlUtilFrameGetUniqueID() || fit.settingsDialogAction(frame, lineMaps).empty())
        return;
    m_frame = frame;
    m_lineMaps = std::move(lineMaps);
    m_fit = fit;
    readSettings();
    m_connections.disconnectAll();
    m_connections.add(signaling::StateChangeEventObservable::getInstance().connect(
        [this](const toolbox::StateChangeEventInterface& event) { stateChanged(event); }));
    show();
    raise();
    activateWindow();
}

void CurveFitSettingsDialog::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        m_connections.disconnectAll();
        m_askAgain->stop();
    }
    QDialog::hideEvent(event);
}

bool CurveFitSettingsDialog::isUpToDate() const
{
    return m_frame == CvlUtilFrameGetUniqueID() && m_fit.isValid()
        && commonFit(m_lineMaps) == m_fit;
}

void CurveFitSettingsDialog::readSettings()
{
    const CvlInt64 first = m_lineMaps.next(0);
    m_lineMapsLabel->setText(m_lineMaps.count() == 1
                                 ? nameOf(m_frame, first)
                                 : tr("%n line maps", "", static_cast<int>(m_lineMaps.count())));
    m_form->read(m_fit, first);
    showReport();
}

void CurveFitSettingsDialog::showReport()
{
    const auto report = propertybindings::curveFitReport(m_frame, m_lineMaps.next(0));
    const QString text = report.value_or(tr("The curve is being fitted."));
    m_report->setVisible(!text.isEmpty());
    if (text != m_report->toPlainText())
        m_report->setPlainText(text);
    if (!report)
        m_askAgain->start();
}

void CurveFitSettingsDialog::apply()
{
    if (!isUpToDate()) {
        reject();
        return;
    }
    const sdk::ui::HostCommandScope command;
    const sdk::ui::StyleUndoStep step;
    m_form->write(m_lineMaps);
    showReport();
}

void CurveFitSettingsDialog::stateChanged(const toolbox::StateChangeEventInterface& event)
{
    switch (event.stateChange()) {
    case StateCode_Style:
        if (event.styleParam(1) == "LineMap" && event.styleParam(2) == "Curves" && !isUpToDate())
            reject();
        break;
    case StateCode_UndoApplied:
    case StateCode_RedoApplied:
        if (isUpToDate())
            readSettings();
        else
            reject();
        break;
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_LineMapListChanged:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached:
    case StateCode_VariableListChanged:
    case StateCode_ActiveFrameChanged: reject(); break;
    default: break;
    }
}

} // namespace corvala::dialogs::lineplot
