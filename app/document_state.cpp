// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/document_state.h"

#include "host/document/document.h"
#include "host/storage/document_file.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace corvala::app {

using host::Document;

static const QUndoStack& undoStack()
{
    return Document::instance().undo().stack();
}

/// The same for the same data that are read in another way.
static std::vector<std::string> namesOf(const host::DataOrigin& origin)
{
    std::vector<std::string> names = origin.files;
    names.push_back(origin.demo);
    return names;
}

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    QCryptographicHash sum(QCryptographicHash::Sha1);
    const bool isRead = QFileInfo(name).isFile() // a pipe would wait for ever
        && file.open(QIODevice::ReadOnly) && sum.addData(&file);
    return isRead ? sum.result() : QByteArray();
}

DocumentState::DocumentState(QObject* parent)
    : QObject(parent)
{
    connect(&undoStack(), &QUndoStack::cleanChanged, this, &DocumentState::notice);
    m_saved =
        host::storage::documentSaved().connect([this](const QString& file) { setSaved(file); });
    m_connection = Document::instance().executed().connect(
        [this](const host::Operation& operation, const host::Outcome& outcome) {
            if (outcome.isDone())
                take(operation);
        });
}

bool DocumentState::isChanged() const
{
    return !undoStack().isClean() || m_hasOtherData || m_hasLostSteps;
}

bool DocumentState::isFileChanged() const
{
    return QFile::exists(m_file) && contentOf(m_file) != m_content;
}

/// An emptied stack is clean whatever was in it.
void DocumentState::notice(bool isClean)
{
    m_hasLostSteps = m_hasLostSteps || (isClean && undoStack().count() == 0);
    Q_EMIT changed();
}

void DocumentState::take(const host::Operation& operation)
{
    if (const auto* const load = std::get_if<host::LoadDocument>(&operation))
        return setSaved(QString::fromStdString(load->file));
    const auto* const attached = std::get_if<host::AttachData>(&operation);
    const bool isDetached = std::holds_alternative<host::DetachData>(operation);
    const bool isOther = attached || isDetached || std::holds_alternative<host::AddFrame>(operation)
        || std::holds_alternative<host::DeleteFrame>(operation);
    if (!isOther)
        return;
    const bool isAlone = Document::instance().frameCount() == 1;
    const bool isReplaced =
        attached && std::exchange(m_data, namesOf(attached->origin)) != namesOf(attached->origin);
    if (isAlone && (isDetached || (isReplaced && !m_file.isEmpty())))
        return setNew();
    if (isDetached)
        m_file.clear();
    const bool isFresh = attached && m_file.isEmpty() && isAlone;
    m_hasOtherData = !isFresh;
    m_hasLostSteps = m_hasLostSteps && !isFresh;
    Q_EMIT changed();
}

void DocumentState::setSaved(const QString& file)
{
    const host::Frame* const frame = Document::instance().activeFrame();
    m_data = frame && !frame->origins().empty() ? namesOf(frame->origins().front())
                                                : std::vector<std::string>();
    m_file = file;
    m_content = contentOf(file);
    Document::instance().undo().markSaved();
    m_hasOtherData = m_hasLostSteps = false;
    Q_EMIT changed();
}

void DocumentState::setOtherThanSaved()
{
    m_hasOtherData = true;
    Q_EMIT changed();
}

void DocumentState::setNew()
{
    setSaved({});
}

} // namespace corvala::app
