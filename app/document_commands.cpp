// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/document_commands.h"

#include "app/command_tips.h"
#include "app/data_opening.h"
#include "app/document_file_dialog.h"
#include "app/icons.h"
#include "app/notice_bar.h"
#include "app/recent_files.h"
#include "host/document/document.h"
#include "host/storage/moved_data.h"

#include <QAction>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSessionManager>
#include <QStatusBar>

namespace corvala::app {

namespace storage = host::storage;
using host::Document;
using host::io::ReadRequest;
using host::io::ReadResult;

DocumentCommands::DocumentCommands(QMainWindow& window, NoticeBar& notice, DataOpener& opener)
    : QObject(&window)
    , m_window(window)
    , m_notice(notice)
    , m_opener(opener)
{
    m_new = addCommand(tr("&New"), "document-new", QKeySequence::New,
                       tr("Begins an empty document"), &DocumentCommands::startNew);
    m_saveCommands = {
        addCommand(tr("&Save"), "document-save", QKeySequence::Save,
                   tr("Saves the document: styles, views and where the data are"),
                   &DocumentCommands::saveCommand),
        addCommand(tr("Save &As..."), "document-save-as",
                   QKeySequence(QStringLiteral("Ctrl+Shift+S")),
                   tr("Saves the document in another file"), &DocumentCommands::saveAsCommand),
        addCommand(tr("&Load Style from Document..."), "document-import", {},
                   tr("Takes the styles of zones of the same names over to the open data"),
                   &DocumentCommands::loadStyles)};
}

QAction* DocumentCommands::addCommand(const QString& text, const char* icon,
                                      const QKeySequence& keys, const QString& tip,
                                      void (DocumentCommands::*command)())
{
    auto* action = new QAction(text, this);
    action->setIcon(commandIcon(icon));
    setUpCommand(*action, icon, keys, tip);
    connect(action, &QAction::triggered, this, command);
    return action;
}

void DocumentCommands::enable(bool enabled)
{
    m_isEnabled = enabled;
    refresh();
}

void DocumentCommands::refresh()
{
    const Document& document = Document::instance();
    const host::Frame* const frame = document.activeFrame();
    const bool hasData = frame && frame->hasData();
    const bool isEmpty =
        !hasData && document.frameCount() <= 1 && m_state.file().isEmpty() && !m_state.isChanged();
    m_new->setEnabled(m_isEnabled && !isEmpty);
    for (QAction* const action : qAsConst(m_saveCommands))
        action->setEnabled(m_isEnabled && !isEmpty);
    m_saveCommands.last()->setEnabled(m_isEnabled && hasData); // takes styles for data
}

QString DocumentCommands::title() const
{
    const host::Frame* const frame = Document::instance().activeFrame();
    QString name = QFileInfo(m_state.file()).fileName();
    if (name.isEmpty() && frame && frame->hasData())
        name = QString::fromStdString(frame->data()->title);
    if (name.isEmpty() && m_state.isChanged())
        name = tr("Untitled");
    return name.isEmpty()
        ? name
        : name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) + QLatin1String("[*]");
}

void DocumentCommands::askBeforeLosing()
{
    m_asks = true;
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &DocumentCommands::commit,
            Qt::DirectConnection);
    connect(qApp, &QGuiApplication::saveStateRequest, this, &DocumentCommands::describeRestart,
            Qt::DirectConnection);
}

/// The next session begins with the document.
void DocumentCommands::describeRestart(QSessionManager& manager)
{
    QStringList command {QCoreApplication::applicationFilePath()};
    if (!m_state.file().isEmpty())
        command << m_state.file();
    manager.setRestartCommand(command);
}

void DocumentCommands::commit(QSessionManager& manager)
{
    if (!m_state.isChanged() || !manager.allowsInteraction())
        return;
    if (mayLose())
        manager.release();
    else
        manager.cancel(); // ends the interaction as well
}

bool DocumentCommands::mayLose()
{
    if (!m_asks || !m_state.isChanged())
        return true;
    const QString name = QFileInfo(m_state.file()).fileName();
    QMessageBox box(QMessageBox::Warning, tr("Unsaved Changes"),
                    name.isEmpty() ? tr("Save the document?")
                                   : tr("Save the changes of %1?").arg(name),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(tr("What is not saved will be lost."));
    box.setDefaultButton(QMessageBox::Save);
    box.button(QMessageBox::Discard)->setText(tr("&Discard")); // desktops name it in many ways
    const int answer = box.exec();
    return answer == QMessageBox::Save ? save() : answer == QMessageBox::Discard;
}

bool DocumentCommands::mayReplaceData()
{
    const host::Frame* const frame = Document::instance().activeFrame();
    return !frame || !frame->hasData() || mayLose();
}

void DocumentCommands::startNew()
{
    if (m_opener.isRunning() || !mayLose())
        return;
    Document::instance().clear();
    m_state.setNew();
    m_notice.tell({});
}

bool DocumentCommands::save()
{
    if (m_state.file().isEmpty())
        return saveAs();
    return m_asks && m_state.isFileChanged() ? saveOverChanges() : saveTo(m_state.file());
}

/// Another program wrote the file.
bool DocumentCommands::saveOverChanges()
{
    QMessageBox box(QMessageBox::Warning, tr("Changed File"),
                    tr("%1 was changed by another program since it was opened. Overwrite it?")
                        .arg(QFileInfo(m_state.file()).fileName()),
                    QMessageBox::Cancel, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Cancel);
    const QPushButton* const over = box.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    const QPushButton* const other = box.addButton(tr("Save &As..."), QMessageBox::ActionRole);
    box.exec();
    if (box.clickedButton() == other)
        return saveAs();
    return box.clickedButton() == over && saveTo(m_state.file());
}

/// A name for the document: that of the data, beside them.
static QString proposedFile(const QString& file)
{
    const host::Frame* const frame = Document::instance().activeFrame();
    if (!file.isEmpty() || !frame || frame->origins().empty()
        || frame->origins().front().files.empty())
        return file;
    const QFileInfo data(QString::fromStdString(frame->origins().front().files.front()));
    return data.dir().filePath(data.completeBaseName() + QLatin1String(storage::kFileEnding));
}

bool DocumentCommands::saveAs()
{
    const QString file = askForDocumentFile(m_window, proposedFile(m_state.file()));
    return !file.isEmpty() && saveTo(file);
}

bool DocumentCommands::saveTo(const QString& file)
{
    const QString problem = storage::saveDocument(Document::instance(), file);
    if (!problem.isEmpty()) {
        Q_EMIT failed(problem);
        return false;
    }
    rememberFiles({m_state.file()});
    constexpr int kShownMilliseconds = 5000;
    m_window.statusBar()->showMessage(tr("Saved %1").arg(file), kShownMilliseconds);
    return true;
}

void DocumentCommands::open(const QString& file)
{
    if (m_opener.isRunning() || !mayLose())
        return;
    const QString path = QFileInfo(file).absoluteFilePath();
    const QByteArray content = contentOf(path);
    const storage::ReadDocument read = storage::readDocument(path);
    if (!read.document) {
        Q_EMIT failed(read.problem);
        return;
    }
    auto document = std::make_shared<storage::StoredDocument>(*read.document);
    const bool isMoved = !storage::missingFiles(*document).isEmpty();
    if (findData(*document, path))
        readData({path, content, std::move(document), isMoved});
}

/// Tells of missing files; whether the user wants to look for them.
static bool wantsToLook(QWidget& window, const QString& text, const QStringList& missing)
{
    constexpr int kShown = 5;
    QMessageBox box(QMessageBox::Warning, DocumentCommands::tr("Missing Data"), text,
                    QMessageBox::Cancel, &window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(missing.mid(0, kShown).join(QLatin1Char('\n'))
                           + (missing.size() > kShown ? DocumentCommands::tr("\n...") : QString()));
    const QPushButton* const look =
        box.addButton(DocumentCommands::tr("Look Elsewhere..."), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == look;
}

/// Lets the user look for data that are missing; false when they are not to be had.
bool DocumentCommands::findData(storage::StoredDocument& document, const QString& file)
{
    const QFileInfo info(file);
    QString folder; // in which they were looked for
    for (QStringList missing = storage::missingFiles(document); !missing.isEmpty();
         missing = storage::missingFiles(document)) {
        const QString text = folder.isEmpty()
            ? tr("%1: %n data file(s) cannot be found.", nullptr, missing.size())
                  .arg(info.fileName())
            : tr("%1: %n data file(s) cannot be found in %2 either.", nullptr, missing.size())
                  .arg(info.fileName(), folder);
        if (!wantsToLook(m_window, text, missing))
            return false;
        folder = QFileDialog::getExistingDirectory(&m_window, tr("Folder of the Data"),
                                                   folder.isEmpty() ? info.path() : folder);
        if (folder.isEmpty())
            return false;
        storage::lookIn(folder, document);
    }
    return true;
}

void DocumentCommands::readData(Opening opening)
{
    std::vector<ReadRequest> requests;
    QString problem;
    for (const storage::StoredFrame& frame : opening.document->frames)
        for (const host::DataOrigin& origin : frame.data)
            if (origin.demo.empty() && problem.isEmpty())
                requests.push_back(requestOf(origin, problem));
    if (!problem.isEmpty()) {
        Q_EMIT failed(QStringLiteral("%1: %2").arg(opening.file, problem));
        return;
    }
    m_opener.start(std::move(requests), [this, opening](const std::vector<ReadResult>& results) {
        return put(opening, results);
    });
}

bool DocumentCommands::put(const Opening& opening, const std::vector<ReadResult>& results)
{
    storage::FrameData data;
    QString problem;
    auto read = results.begin();
    const auto next = [&read](const host::DataOrigin& origin, QString& reason) {
        return origin.demo.empty() ? (read++)->data : embeddedData(origin, reason);
    };
    for (const storage::StoredFrame& frame : opening.document->frames)
        data.push_back(storage::dataOf(frame, next, problem));
    QStringList notes;
    auto document = storage::fittedDocument(opening.document, data, notes);
    if (problem.isEmpty() && !notes.isEmpty() && !mayLoad(opening.file, notes))
        return false;
    if (problem.isEmpty())
        problem = storage::putDocument(Document::instance(), opening.file, std::move(document),
                                       std::move(data))
                      .problem;
    if (!problem.isEmpty()) {
        Q_EMIT failed(QStringLiteral("%1: %2").arg(opening.file, problem));
        return false;
    }
    m_state.setContent(opening.content);
    if (opening.isMoved || !notes.isEmpty())
        m_state.setOtherThanSaved();
    rememberFiles({opening.file});
    m_notice.tell(notes.join(QLatin1Char(' ')));
    return true;
}

bool DocumentCommands::mayLoad(const QString& file, const QStringList& notes)
{
    QMessageBox box(QMessageBox::Warning, tr("Changed Data"),
                    tr("The data of %1 have changed.").arg(QFileInfo(file).fileName()),
                    QMessageBox::Cancel, &m_window);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(notes.join(QLatin1Char('\n')));
    const QPushButton* const load = box.addButton(tr("Load What Fits"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == load;
}

void DocumentCommands::loadStyles()
{
    const QString file = QFileDialog::getOpenFileName(&m_window, tr("Load Style from Document"), {},
                                                      tr("Documents (*.cvdoc)"));
    if (file.isEmpty())
        return;
    const storage::LoadOutcome outcome = storage::loadStyles(Document::instance(), file);
    if (outcome.problem.isEmpty())
        m_notice.tell(outcome.notes.join(QLatin1Char(' ')));
    else
        Q_EMIT failed(outcome.problem);
}

} // namespace corvala::app
