// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class QBoxLayout;
class QLabel;

namespace corvala::app {

/// What one can begin with, in place of a plot while there are no data.
class StartPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

Q_SIGNALS:
    void openWanted();
    void folderWanted();
    void filesWanted(const QStringList& files);
    void demoWanted(const QString& name);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addHead(QBoxLayout& layout);
    void fillRecent();
    void fillSamples();
    void fillDemos();

    // Owned by Qt.
    QLabel* m_icon = nullptr;
    QBoxLayout* m_lists = nullptr; ///< side by side where there is room
    QBoxLayout* m_recent = nullptr;
    QBoxLayout* m_samples = nullptr;
    QBoxLayout* m_demos = nullptr;
};

} // namespace corvala::app
