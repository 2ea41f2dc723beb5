// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_prompt/zone_select_dialog.h"

#include <sdk/private/numbered_name_list_model.h>
#include <sdk/private/shared_instance.h>
#include <sdk/uicommon/edit_session.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace corvala::dialogs::prompt {

static constexpr int kFilterDelay = 150; // milliseconds without a key before the list follows

static bool movesInList(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp
        || key == Qt::Key_PageDown;
}

ZoneSelectDialog& ZoneSelectDialog::getInstance(QWidget* parent)
{
    static QPointer<ZoneSelectDialog> instance;
    return common::sharedInstance(instance, parent,
                                  [](QWidget* owner) { return new ZoneSelectDialog(owner); });
}

ZoneSelectDialog::ZoneSelectDialog(QWidget* parent)
    : QDialog(parent)
    , m_model(new common::NumberedNameListModel(this))
    , m_filter(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_filterTimer(new QTimer(this))
{
    setWindowTitle(tr("Select Zone"));
    m_filter->setClearButtonEnabled(true);
    m_filter->setPlaceholderText(tr("Part of the number or name"));
    m_filter->installEventFilter(this);
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setModel(m_model);
    m_filterTimer->setSingleShot(true);
    auto* buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, this);
    m_okButton = buttons->button(QDialogButtonBox::Ok);
    m_okButton->setDefault(true);

    auto* filterLabel = new QLabel(tr("&Filter:"), this);
    filterLabel->setBuddy(m_filter);
    auto* listLabel = new QLabel(tr("&Zones:"), this);
    listLabel->setBuddy(m_list);
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(filterLabel), static_cast<QWidget*>(m_filter),
                            static_cast<QWidget*>(listLabel), static_cast<QWidget*>(m_list),
                            static_cast<QWidget*>(buttons)})
        layout->addWidget(widget);

    connect(m_filter, &QLineEdit::textEdited, m_filterTimer, [this] {
        m_filterTimer->start(kFilterDelay);
        updateOkButton();
    });
    connect(m_filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (text.isEmpty())
            m_filterTimer->start(0); // by the clear button
    });
    connect(m_filterTimer, &QTimer::timeout, this, &ZoneSelectDialog::applyFilter);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ZoneSelectDialog::updateOkButton);
    connect(m_list, &QListView::doubleClicked, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

ZoneSelectDialog::~ZoneSelectDialog() = default;

bool ZoneSelectDialog::selectZone(CvlInt64 current)
{
    m_filter->clear();
    m_filterTimer->stop();
    m_model->listZones();
    makeCurrent(m_model->rowOf(current));
    m_filter->setFocus();
    return sdk::ui::execInEditSession(*this) == QDialog::Accepted;
}

void ZoneSelectDialog::done(int result)
{
    if (result == QDialog::Accepted) {
        applyFilter();
        if (currentZone() == 0)
            return;
        m_selectedZone = currentZone();
    }
    m_filterTimer->stop();
    QDialog::done(result);
}

bool ZoneSelectDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_filter && movesInList(*event)) {
        applyFilter();
        QCoreApplication::sendEvent(m_list, event);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void ZoneSelectDialog::applyFilter()
{
    m_filterTimer->stop();
    const CvlInt64 chosen = currentZone();
    if (!m_model->setFilter(m_filter->text()))
        return;
    const int row = m_model->rowOf(chosen);
    // What the user types is to lead to a zone: the first one that is left.
    makeCurrent(row < 0 && !m_filter->text().isEmpty() ? 0 : row);
}

void ZoneSelectDialog::makeCurrent(int row)
{
    const QModelIndex index = m_model->index(row, 0);
    m_list->setCurrentIndex(index);
    m_list->scrollTo(index, QAbstractItemView::PositionAtCenter);
    updateOkButton();
}

void ZoneSelectDialog::updateOkButton()
{
    m_okButton->setEnabled(currentZone() != 0 || m_filterTimer->isActive());
}

CvlInt64 ZoneSelectDialog::currentZone() const
{
    return m_model->numberAt(m_list->currentIndex().row());
}

} // namespace corvala::dialogs::prompt
