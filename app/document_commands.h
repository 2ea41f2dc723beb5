// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/document_state.h"
#include "host/io/data_reader.h"
#include "host/storage/document_file.h"

#include <QList>
#include <QStringList>

class QAction;
class QMainWindow;
class QSessionManager;

namespace corvala::app {

class DataOpener;
class NoticeBar;

/// The commands on the document as a file: new, open, save, and styles of another one.
class DocumentCommands : public QObject
{
    Q_OBJECT

public:
    /// Asks in dialogs over the window, which with the others must outlive the commands.
    DocumentCommands(QMainWindow& window, NoticeBar& notice, DataOpener& opener);

    const DocumentState& state() const { return m_state; }
    /// Such as "wing.cvdoc[*]" or "wing.cgns[*]"; empty for an empty document.
    QString title() const;

    QAction& newCommand() const { return *m_new; }
    const QList<QAction*>& saveCommands() const { return m_saveCommands; }
    void enable(bool enabled); ///< while nothing is read
    void refresh(); ///< enables what the document allows

    /// From now on the user is asked before changes are lost, by a session that ends too.
    void askBeforeLosing();
    /// Asks whether to save changes; false when nothing is to happen.
    bool mayLose();
    /// The same before the data of the active frame are replaced.
    bool mayReplaceData();

    /// Reads a document and its data while the program goes on. Ignored while a reading runs.
    void open(const QString& file);
    bool save(); ///< false when it could not be, or the user cancelled
    bool saveAs();
    void loadStyles();

Q_SIGNALS:
    void failed(const QString& problem);

private:
    /// A document whose data are being read.
    struct Opening
    {
        QString file;
        QByteArray content; ///< of the file, as of contentOf()
        std::shared_ptr<const host::storage::StoredDocument> document;
        bool isMoved = false; ///< its data are elsewhere than it says
    };

    QAction* addCommand(const QString& text, const char* icon, const QKeySequence& keys,
                        const QString& tip, void (DocumentCommands::*command)());
    void startNew();
    void saveCommand() { save(); }
    void saveAsCommand() { saveAs(); }
    bool saveTo(const QString& file);
    bool saveOverChanges();
    void commit(QSessionManager& manager);
    void describeRestart(QSessionManager& manager);

    bool findData(host::storage::StoredDocument& document, const QString& file);
    void readData(Opening opening);
    bool put(const Opening& opening, const std::vector<host::io::ReadResult>& results);
    bool mayLoad(const QString& file, const QStringList& notes);

    QMainWindow& m_window;
    NoticeBar& m_notice;
    DataOpener& m_opener;
    DocumentState m_state;
    bool m_asks = false;
    bool m_isEnabled = true;
    // Owned by Qt.
    QAction* m_new = nullptr;
    QList<QAction*> m_saveCommands;
};

} // namespace corvala::app
