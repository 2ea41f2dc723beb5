// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/notice_bar.h"

#include "app/help_reference.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace corvala::app {

NoticeBar::NoticeBar(QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel(this))
    , m_button(new QPushButton(this))
    , m_details(new QPushButton(tr("Details..."), this))
{
    setFrameShape(QFrame::StyledPanel);
    setHelpReference(*this, QStringLiteral("window.html#notes"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 2, 2);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_details);
    layout->addWidget(m_button);
    auto* close = new QToolButton(this);
    close->setIcon(style()->standardIcon(QStyle::SP_DockWidgetCloseButton));
    close->setAutoRaise(true);
    close->setToolTip(tr("Hide this note"));
    layout->addWidget(close);
    connect(m_details, &QPushButton::clicked, this, &NoticeBar::showDetails);
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
    m_details->hide();
    setVisible(!text.isEmpty());
    return ++m_note;
}

void NoticeBar::addDetails(const QStringList& sentences)
{
    m_sentences = sentences;
    m_details->show();
}

void NoticeBar::showDetails()
{
    auto* const dialog = new QDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Notes"));
    auto* const list = new QPlainTextEdit(m_sentences.join(QLatin1Char('\n')), dialog);
    list->setReadOnly(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    auto* const layout = new QVBoxLayout(dialog);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog->resize(700, 400);
    dialog->open();
}

} // namespace corvala::app
