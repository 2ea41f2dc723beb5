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

#include <algorithm>

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
    connect(close, &QToolButton::clicked, this, &NoticeBar::close);
    connect(m_button, &QPushButton::clicked, this, [this] {
        if (const auto command = m_notes.back().command) // which may tell something else
            command();
    });
    hide();
}

void NoticeBar::tell(const QString& text, const QString& caption,
                     const std::function<void()>& command)
{
    m_notes.clear();
    tellInPassing(0, text, caption, command);
}

int NoticeBar::tellInPassing(int former, const QString& text, const QString& caption,
                             const std::function<void()>& command)
{
    auto place = std::find_if(m_notes.begin(), m_notes.end(),
                              [former](const Note& note) { return note.number == former; });
    if (place != m_notes.end())
        place = m_notes.erase(place);
    if (!text.isEmpty())
        m_notes.insert(place, {++m_lastNumber, text, caption, command, {}});
    showLast();
    return text.isEmpty() ? 0 : m_lastNumber;
}

bool NoticeBar::isShown(int number) const
{
    return std::any_of(m_notes.begin(), m_notes.end(),
                       [number](const Note& note) { return note.number == number; });
}

void NoticeBar::close()
{
    m_notes.pop_back();
    showLast();
}

void NoticeBar::showLast()
{
    if (!m_notes.empty()) {
        const Note& note = m_notes.back();
        m_text->setText(note.text);
        m_button->setText(note.caption);
        m_button->setVisible(!note.caption.isEmpty());
        m_details->setVisible(!note.sentences.isEmpty());
    }
    setVisible(!m_notes.empty());
}

void NoticeBar::addDetails(const QStringList& sentences)
{
    if (m_notes.empty())
        return;
    m_notes.back().sentences = sentences;
    showLast();
}

void NoticeBar::showDetails()
{
    auto* const dialog = new QDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Notes"));
    auto* const list = new QPlainTextEdit(m_notes.back().sentences.join(QLatin1Char('\n')), dialog);
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
