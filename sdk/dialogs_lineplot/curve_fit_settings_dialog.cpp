// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_lineplot/curve_fit_settings_dialog.h"

#include <sdk/base/cvl.h>
#include <sdk/private/curve_fit_settings_form.h>
#include <sdk/private/shared_instance.h>
#include <sdk/signals/state_change_event_observable.h>
#include <sdk/toolbox/style_value.h>
#include <sdk/uicommon/host_command_scope.h>
#include <sdk/uicommon/style_writing.h>

#include <QDialogButtonBox>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include <optional>

namespace corvala::dialogs::lineplot {

/// The curve type that all line maps of the active frame have; none when they differ, one does not
/// exist, or there are none.
static std::optional<CurveType_e> commonCurveType(const toolbox::Set& lineMaps)
{
    const toolbox::StyleValue curveType(style::lineMap.curves.curveType);
    const auto type = curveType.read<int>(lineMaps.next(0));
    const bool isCommon = std::all_of(lineMaps.begin(), lineMaps.end(), [&](CvlInt64 map) {
        return curveType.read<int>(map) == type;
    });
    return type && isCommon ? std::optional<CurveType_e>(static_cast<CurveType_e>(*type))
                            : std::nullopt;
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

CurveFitSettingsDialog::CurveFitSettingsDialog(QWidget* parent)
    : QDialog(parent)
    , m_lineMapsLabel(new QLabel(this))
    , m_form(new CurveFitSettingsForm(this))
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
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_lineMapsLabel);
    layout->addWidget(m_form);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize); // follows the fields that are shown

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
    const auto type = commonCurveType(lineMaps);
    if (frame != CvlUtilFrameGetUniqueID() || !type || !CurveFitSettingsForm::hasSettings(*type))
        return;
    m_frame = frame;
    m_lineMaps = std::move(lineMaps);
    m_type = *type;
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
    if (!event->spontaneous())
        m_connections.disconnectAll();
    QDialog::hideEvent(event);
}

bool CurveFitSettingsDialog::isUpToDate() const
{
    return m_frame == CvlUtilFrameGetUniqueID() && commonCurveType(m_lineMaps) == m_type;
}

void CurveFitSettingsDialog::readSettings()
{
    const CvlInt64 first = m_lineMaps.next(0);
    m_lineMapsLabel->setText(m_lineMaps.count() == 1
                                 ? nameOf(m_frame, first)
                                 : tr("%n line maps", "", static_cast<int>(m_lineMaps.count())));
    m_form->read(m_type, first);
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
}

void CurveFitSettingsDialog::stateChanged(const toolbox::StateChangeEventInterface& event)
{
    switch (event.stateChange()) {
    case StateCode_Style:
        if (event.styleParam(1) == "LineMap" && event.styleParam(3) == "CurveType" && !isUpToDate())
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
