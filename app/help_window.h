// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QSplitter;
class QTextBrowser;

namespace corvala::app {

/// Shows the pages of the help: their contents or what a search found at the left, a page at the
/// right. Remembers its place and size.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    HelpWindow();
    ~HelpWindow() override;

    /// Opens a page, with its anchor, before all other windows. While a prompt is open it belongs
    /// to that, so that it can be read meanwhile.
    void open(const QString& reference);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeBar();
    void makePanes();
    void useColors();
    void bringToFront();
    void leavePrompt();
    void listContents();
    void listHits(const QString& text);
    void openEntry(const QListWidgetItem& entry);
    void markCurrentPage();
    void markFound();
    void findNext();

    // Owned by Qt.
    QList<QAction*> m_commands;
    QLineEdit* m_search = nullptr;
    QListWidget* m_list = nullptr; ///< the contents, or the pages that a search found
    QSplitter* m_panes = nullptr;
    QTextBrowser* m_page = nullptr;
};

} // namespace corvala::app
