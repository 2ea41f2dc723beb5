// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/document_file_dialog.h"

#include "app/recent_files.h"
#include "host/io/sample_list.h"
#include "host/storage/document_file.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QStandardPaths>

namespace corvala::app {

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(DocumentFileDialog)
};

/// Also where the name has another ending, which is a part of it: "run.v2".
QString withEnding(const QString& name)
{
    const QLatin1String ending(host::storage::kFileEnding);
    return name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

/// Completes the name before it asks whether the file is to be replaced.
class Dialog : public QFileDialog
{
public:
    explicit Dialog(QWidget& parent)
        : QFileDialog(&parent, Text::tr("Save Document"), {}, Text::tr("Documents (*.cvdoc)"))
    {
        setAcceptMode(AcceptSave);
    }

protected:
    void accept() override
    {
        auto* const entry = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        if (entry && isFileName(entry->text()))
            entry->setText(withEnding(entry->text()));
        QFileDialog::accept();
    }

private:
    bool isFileName(const QString& text) const
    {
        const bool isFolder = text.isEmpty() || text.endsWith(QLatin1Char('/'))
            || text == QLatin1String("~") || QFileInfo(directory(), text).isDir();
        return !isFolder;
    }
};

bool isWritableFolder(const QString& folder)
{
    const QFileInfo info(folder);
    return info.isDir() && info.isWritable();
}

QString documentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return isWritableFolder(documents) ? documents : QDir::homePath();
}

/// The samples are the program's, even where the user could write beside them.
bool isOfSamples(const QString& folder)
{
    const QString samples = QFileInfo(host::io::samplesFolder()).canonicalFilePath();
    const QString inside = QFileInfo(folder).canonicalFilePath() + QLatin1Char('/');
    return !samples.isEmpty() && inside.startsWith(samples + QLatin1Char('/'));
}

QString writableFolder(const QString& wanted)
{
    if (isOfSamples(wanted))
        return documentsFolder();
    if (isWritableFolder(wanted))
        return wanted;
    for (const QStringList& files : recentFiles())
        if (const QFileInfo file(files.constFirst());
            host::storage::isDocumentFile(file.filePath()) && isWritableFolder(file.absolutePath()))
            return file.absolutePath();
    return documentsFolder();
}

/// Dialogs of the desktop ask before they know the whole name.
bool mayReplace(QWidget& parent, const QString& file)
{
    return !QFileInfo::exists(file)
        || QMessageBox::question(&parent, Text::tr("Save Document"),
                                 Text::tr("%1 exists. Replace it?").arg(file))
        == QMessageBox::Yes;
}

} // namespace

QString askForDocumentFile(QWidget& parent, const QString& proposed)
{
    const QFileInfo file(proposed.isEmpty() ? QDir::current() : QFileInfo(proposed).dir(),
                         QFileInfo(proposed).fileName());
    Dialog dialog(parent);
    dialog.setDirectory(writableFolder(file.absolutePath()));
    dialog.selectFile(file.fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString chosen = dialog.selectedFiles().constFirst();
    const QString whole = withEnding(chosen);
    return whole == chosen || mayReplace(parent, whole) ? whole : QString();
}

} // namespace corvala::app
