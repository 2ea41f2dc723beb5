// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/work_progress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace corvala::app {

WorkProgress::WorkProgress(QWidget* parent)
    : QWidget(parent)
    , m_what(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_cancel(new QPushButton(tr("Cancel"), this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_what);
    layout->addWidget(m_bar);
    layout->addWidget(m_cancel);
    m_bar->setFixedWidth(200);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancel->setEnabled(false);
        Q_EMIT cancelled();
    });
    hide();
}

void WorkProgress::begin(const QString& what)
{
    m_cancel->setEnabled(true);
    advance(-1, what);
    show();
}

void WorkProgress::advance(int percent, const QString& what)
{
    m_what->setText(what);
    m_bar->setRange(0, percent < 0 ? 0 : 100);
    m_bar->setValue(percent < 0 ? 0 : percent);
}

void WorkProgress::end()
{
    hide();
}

} // namespace corvala::app
