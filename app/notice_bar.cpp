// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notice_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

namespace corvala::app {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_button(new QPushButton(this))
{
    setFrameShape(QFrame::StyledPanel);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 2, 2);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_button);
    auto* close = new QToolButton(this);
    close->setIcon(style()->standardIcon(QStyle::SP_DockWidgetCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(tr("Hide this note"));
    layout->addWidget(close);
    connect(close, &QToolButton::clicked, this, &QWidget::hide);
    connect(m_button, &QPushButton::clicked, this, [this] {
        if (const auto command = m_command) // which may tell something else
            command();
    });
    hide();
}

int NoticeBar::tell(const QString& text, const QString& caption,
                    const std::function<void()>& command)
{
    m_text->setText(text);
    m_button->setText(caption);
    m_button->setVisible(!caption.isEmpty());
    m_command = command;
    setVisible(!text.isEmpty());
    return ++m_note;
}

} // namespace corvala::app
